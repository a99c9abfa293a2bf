#pragma once

#include "store/records/SVRRecord.h"

#include <QString>

// The parameter text of recorders of family "SVR", lines of `camera_c<n>.key=value`, and the small translations
// between device codes and the names the pages show.

// Fill the image, PTZ and ONVIF fields of a channel from its reply. A key that the text does not hold leaves its field
// alone, and so does one with a bad number, which is logged.
void CHImageInfoPaser(SVRChannel& channel, const QString& reply);
void CHPTZInfoPaser(SVRChannel& channel, const QString& reply);
void CHOnvifInfoPaser(SVRChannel& channel, const QString& reply);

// Device code (a number as text, mode 0) to name, or name to code (mode 1). The empty text counts as "N/A". No match,
// any other mode, and a code that is not a number (which is logged) give the empty text.
QString GetFMTNameFromCode(const QString& text, qint16 mode); // video format; names match exactly
QString GetFPSMapping(const QString& text, qint16 mode);      // frame rate; names match in any case
QString GetsBitrate(const QString& text, qint16 mode);        // bit rate; names match in any case
QString GetsRateControl(const QString& text, qint16 mode);    // rate control; a name must be in upper case

// Classic URL-style escape: ASCII letters, digits and @*_+-./ stand, other characters become %XX and UTF-16 units
// above 255 %uXXXX. Unescape reverses it and leaves a broken sequence as it is. A text with a double quote cannot be
// converted: that is logged and the result is empty.
QString Escape(const QString& text);
QString Unescape(const QString& text);

// Whether `text` is four numbers from 0 to 255 with points between. Leading zeros and a sign pass, blanks do not.
bool CheckIP(const QString& text);

namespace ParameterText {

// Normalises a stored device-type text to a family; unknown texts give the empty one. The recorders' own function of
// this name, which decides the family at detection, is another.
QString GetsDeviceType(const QString& source, qint32 brand);

} // namespace ParameterText
