#include "store/RecordFamily.h"

#include "app/log/Module_Log.h"

#include <algorithm>

void FamilyRegister::add(RecordFamily family)
{
    const auto place =
        std::upper_bound(m_families.begin(), m_families.end(), family.order,
                         [](FamilyOrder order, const RecordFamily& other) { return order < other.order; });
    m_families.insert(place, std::move(family));
}

bool FamilyRegister::ExitCheck() const
{
    return std::any_of(m_families.begin(), m_families.end(),
                       [](const RecordFamily& family) { return family.isMarked(); });
}

void FamilyRegister::InitialSetValue() const
{
    for (const RecordFamily& family : m_families)
        Trapped("Module_PublicFunction - InitialSetValue", [&] { family.revert(); });
}

void FamilyRegister::SaveCheck(const std::function<void(int)>& pageSaved) const
{
    std::array<bool, kSettingPages> touched{};
    for (const RecordFamily& family : m_families) {
        Trapped("Form_Initial - SaveCheck", [&] {
            if (!family.isMarked())
                return;
            touched[static_cast<std::size_t>(family.page)] = true;
            family.save();
        });
    }
    for (int page = 0; page < kSettingPages; ++page) {
        if (touched[static_cast<std::size_t>(page)])
            pageSaved(page);
    }
}

void FamilyRegister::revertPage(int page) const
{
    for (const RecordFamily& family : m_families) {
        if (family.page == page)
            Trapped("Form_Initial - PageLeaveCheck", [&] { family.revert(); });
    }
}
