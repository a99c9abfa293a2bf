#pragma once

#include "app/ui/PageTable.h"
#include "emap/ui/EMapConfig.h"

#include <QVBoxLayout>

// Page 6: hosts the window of the maps.
class EMapPage : public Page
{
    Q_OBJECT

public:
    explicit EMapPage(const DeskParts& parts)
        : m_maps(new EMapConfig({parts.station.emap, parts.station.recorders, parts.context.save,
                                 [&station = parts.station] { station.families.revertPage(kEMapPage); }}))
    {
        auto* column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->addWidget(m_maps);
        connect(m_maps, &EMapConfig::changesChanged, this, &Page::changesChanged);
    }

    void enter() override { m_maps->OpenEMapConfigFrame(); }
    void changeLanguage() override { m_maps->changeLanguage(); }
    bool hasChanges() const override { return m_maps->hasChanges(); }
    void apply() override { m_maps->lbEmapApply_Click(0); }
    void revert() override { m_maps->lbEmapApply_Click(1); }

private:
    static constexpr int kEMapPage = 6;

    EMapConfig* m_maps;
};
