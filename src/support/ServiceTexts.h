#pragma once

#include <QString>

// English text of a registry error number (0 to 14); any other number gives "Undefined Error.".
QString GetRegistryErrorText(qint16 number);
