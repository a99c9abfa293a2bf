#pragma once

#include "recorders/NVRListModel.h"

#include <QWidget>
#include <memory>

class Work;
namespace Ui {
class NVRPage;
}

// Page 1: the recorders of the station, with a quick filter and sorting.
class NVRPage : public QWidget
{
    Q_OBJECT

public:
    // `poller` asks whether the recorders answer, while the page is on show.
    NVRPage(const RecorderSet& recorders, DevicePoller& poller, QWidget* parent = nullptr);
    ~NVRPage() override;

    void Grid_SVR_Draw();       // prepares the list and its heads
    void Grid_SVR_Set_withDB(); // fills it from the stored generation
    void changeLanguage();
    // Holds the list back while the work of the window runs, behind its step and Stop.
    void showWork(Work& work);

public slots:
    // Opens the wizard, or says that the station is full.
    void lbAdd_Click();

signals:
    void wizardWanted();
    void editWanted(int slot);   // from 0
    void renameWanted(int slot); // the same, and its name is what is to be changed
    void removeWanted(int slot);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void readAgain();
    void remove(int slot); // asks
    QString counts() const;

    const RecorderSet& m_recorders;
    std::unique_ptr<Ui::NVRPage> m_ui;
    ConnectionWatch m_watch;
    NVRListModel* m_model;
};
