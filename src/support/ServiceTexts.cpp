#include "support/ServiceTexts.h"

#include <array>

QString GetRegistryErrorText(qint16 number)
{
    static constexpr std::array<const char*, 15> texts = {"Invalid Base Key Value.",
                                                          "Invalid Data Type.",
                                                          "Key Not Found.",
                                                          "Value Not Found.",
                                                          "Value Data Type Mismatch.",
                                                          "Registry Entry Locked.",
                                                          "The Specified Key Is Invalid.",
                                                          "Unable To Open Key.",
                                                          "Unable To Read Key.",
                                                          "Unable To Create Key.",
                                                          "Unable To Read Value.",
                                                          "Unable To Update Value.",
                                                          "Unable To Create Value.",
                                                          "Unable To Delete Key.",
                                                          "Unable To Delete Value."};
    if (number < 0 || number >= static_cast<int>(texts.size()))
        return QStringLiteral("Undefined Error.");
    return QString::fromLatin1(texts[static_cast<std::size_t>(number)]);
}
