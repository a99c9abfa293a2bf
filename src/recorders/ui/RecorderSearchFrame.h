#pragma once

#include "recorders/detect/SearchListModel.h"

#include <QWidget>
#include <memory>

class FinderBridge;
namespace Ui {
class RecorderSearchFrame;
}

// Frame 1: the recorders that answer a search of the network, to be checked.
class RecorderSearchFrame : public QWidget
{
    Q_OBJECT

public:
    RecorderSearchFrame(FinderBridge& finder, const RecorderSet& recorders, QWidget* parent);
    ~RecorderSearchFrame() override;

    void open(); // searches only when nothing has been found yet
    void stop(); // a search under way ends
    bool nothingFound() const;
    SearchListModel& found() { return *m_found; }
    void changeLanguage();

public slots:
    void lbSearch_Click(); // searches anew

signals:
    void changed(); // rows were found or checked, or the search has ended

private:
    void searchEnded();

    FinderBridge& m_finder;
    std::unique_ptr<Ui::RecorderSearchFrame> m_ui;
    SearchListModel* m_found;
    bool m_searching = false;
};
