#pragma once

#include "store/records/SVRRecord.h"

#include <QStringList>

// What the lists of one channel's page offer, from what its records say of its camera. Pure. Entries are the texts that
// the page shows; formats count from 0.

inline constexpr qint16 kOnvifBrand = 55; // a camera driven over ONVIF
inline constexpr QLatin1String kAbsent("N/A");

// 0 "jpeg", "mjpeg"; 1 "mpeg4"; 2 "h264", "h.264"; in any case of letters. -1 for another text.
int FormatIndex(const QString& format);

// Part `format` of a text with one ";" part a format; a text without ";" is every format's.
QString FormatPart(const QString& list, int format);

struct CameraLists
{
    const SVRChannel& svr;
    const SVRProChannel& pro;
    bool proFamily; // of the recorder

    bool isPro() const { return proFamily; }

    // Formats in the device's own spelling (older family: "MJPEG", "MPEG4", "H.264"), each once.
    QStringList formats() const;
    QStringList resolutions(int format) const;
    // Older family: steps by name ("Full", "1", "5", …, "64K", …), "N/A" for what the camera has not. Pro families:
    // the numbers between the bounds of the resolution.
    QStringList frameRates(int format, const QString& resolution) const;
    QStringList bitRates(int format, const QString& resolution) const;
    QStringList rateControls(int format) const;
    QStringList qualities(int format) const;

    // The number that the records hold for an entry, and the entry of a number: steps of the older family are device
    // codes, the Pro families' numbers stand for themselves (bit rates in kbit/s). -1 and "N/A" are the absent value.
    qint16 frameRateOf(const QString& entry) const;
    QString frameRateText(qint16 value) const;
    qint16 bitRateOf(const QString& entry) const;
    QString bitRateText(qint16 value) const;
    static qint16 rateControlOf(const QString& entry);
    static QString rateControlText(qint16 value);
    static qint16 qualityOf(const QString& entry);
    static QString qualityText(qint16 value);

private:
    bool isOnvif() const { return svr.iSub_CH_Brand == kOnvifBrand; }
};

// Whether the records hold the lists of an earlier detection of this channel's camera.
bool HasStoredDetection(const CameraLists& lists);
