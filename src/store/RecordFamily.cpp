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
    return std::any_of(m_families.begin(), m_families.end(), [](const RecordFamily& family) {
        return family.isMarked() && (!family.countsAtExit || family.countsAtExit());
    });
}

void FamilyRegister::InitialSetValue() const
{
    for (const RecordFamily& family : m_families)
        Trapped("Module_PublicFunction - InitialSetValue", [&] { family.revert(); });
}

bool FamilyRegister::SaveCheck(const std::function<void(int)>& pageSaved) const
{
    std::array<bool, kSettingPages> touched{};
    bool saved = true;
    for (const RecordFamily& family : m_families) {
        saved = Trapped("Form_Initial - SaveCheck",
                        [&] {
                            if (!family.isMarked())
                                return;
                            touched[static_cast<std::size_t>(family.page)] = true;
                            saved = family.save() && saved;
                        }) &&
                saved;
    }
    for (int page = 0; page < kSettingPages; ++page) {
        if (touched[static_cast<std::size_t>(page)])
            pageSaved(page);
    }
    return saved;
}

std::vector<Difference> FamilyRegister::differences(int page) const
{
    std::vector<Difference> all;
    for (const RecordFamily& family : m_families) {
        if (page >= 0 && family.page != page)
            continue;
        std::vector<Difference> own = family.differences();
        all.insert(all.end(), std::make_move_iterator(own.begin()), std::make_move_iterator(own.end()));
    }
    return all;
}

void FamilyRegister::revertPage(int page) const
{
    for (const RecordFamily& family : m_families) {
        if (family.page == page)
            Trapped("Form_Initial - PageLeaveCheck", [&] { family.revert(); });
    }
}
