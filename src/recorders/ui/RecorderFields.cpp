#include "recorders/ui/RecorderFields.h"

#include "app/language/Languages.h"
#include "app/shell/ui/TellFault.h"
#include "support/Conversions.h"

#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::StringLiterals;

namespace {

constexpr int kAskDoubleName = 1037;

} // namespace

RecorderFields::RecorderFields(const std::array<QLineEdit*, kCount>& fields)
    : m_fields(fields)
{
    for (std::size_t i = 0; i < m_fields.size(); ++i)
        m_fields[i]->setMaxLength(kLengths[i]);
    QLineEdit* port = field(ManualField::Port);
    port->setValidator(new QIntValidator(0, 99999, port));
    // Addresses and ports read from the left in every language.
    field(ManualField::Address)->setLayoutDirection(Qt::LeftToRight);
    port->setLayoutDirection(Qt::LeftToRight);
}

QLineEdit* RecorderFields::field(ManualField which) const
{
    return At(m_fields, static_cast<int>(which));
}

void RecorderFields::go(ManualField which) const
{
    field(which)->setFocus();
    field(which)->selectAll();
}

void RecorderFields::tell(const ManualFault& fault) const
{
    TellFault(field(fault.field), fault.message);
}

QCoro::Task<ManualFault> RecorderFields::check(Work& work) const
{
    const NVRDetectItem typed = item();
    field(ManualField::Name)->setText(typed.sName);
    field(ManualField::Address)->setText(typed.sIP);
    const QString port = field(ManualField::Port)->text();
    ManualFault fault = co_await ValidateManualNVR(typed.sName, typed.sIP, port, work);
    if (fault.message == 0 && (typed.iPort < 1 || typed.iPort > 65535))
        fault = {556, ManualField::Port};
    co_return fault;
}

NVRDetectItem RecorderFields::item() const
{
    NVRDetectItem item;
    item.sName = field(ManualField::Name)->text().trimmed();
    item.sIP = field(ManualField::Address)->text().trimmed();
    item.iPort = field(ManualField::Port)->text().trimmed().toInt();
    item.sUser = field(ManualField::User)->text();
    item.sPassword = field(ManualField::Password)->text();
    return item;
}

void RecorderFields::set(const NVRDetectItem& item)
{
    field(ManualField::Name)->setText(item.sName);
    field(ManualField::Address)->setText(item.sIP);
    field(ManualField::Port)->setText(QString::number(item.iPort));
    field(ManualField::User)->setText(item.sUser);
    field(ManualField::Password)->setText(item.sPassword);
}

void RecorderFields::nameByLabels() const
{
    for (QLineEdit* edit : m_fields) {
        const QList<QLabel*> labels = edit->parentWidget()->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->buddy() == edit)
                edit->setAccessibleName(label->text());
        }
    }
}

bool NamesSettled(const RecorderSet& recorders, const std::vector<NVRDetectItem>& items)
{
    const QStringList doubles = DoubleNames(recorders, items);
    return doubles.isEmpty() || Ask(GetLangString(kAskDoubleName).arg(doubles.join(u", "_s)));
}
