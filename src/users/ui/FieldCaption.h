#pragma once

#include "app/language/Languages.h"

#include <QLabel>

// A label with the text of a message number, the buddy of its field; the field takes the text as its accessible name.
inline QLabel* FieldCaption(int number, QWidget* field, const QString& name = {})
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setProperty("tag", QStringLiteral("Caption:%1").arg(number));
    label->setBuddy(field);
    field->setAccessibleName(GetLangString(number));
    return label;
}
