#pragma once

#include <QDialog>
#include <QPointer>

class ActionBar;
class ElidedLabel;
class QToolButton;
class QVBoxLayout;
class StepStrip;

// The frame of the desk's modal dialogs: title row (the window title, movable by the pointer, with a close button),
// an optional strip of steps, the content and a footer. While it is open the window behind it is dimmed.
// A .ui form goes into the content: ui.setupUi(dialog.content()). No dialog is larger than its screen or reaches out of
// it: content that does not fit scrolls.
class DialogFrame : public QDialog
{
    Q_OBJECT
public:
    explicit DialogFrame(QWidget* parent = nullptr);
    ~DialogFrame() override;

    // A second line of quiet writing beside the title, such as what the dialog is about.
    void setSubtitle(const QString& text);
    // What the close button says as its tool tip and accessible name.
    void setCloseText(const QString& text);
    // Hidden for dialogs that only end by their own work.
    void setClosable(bool closable);
    // Where the dialog's own widgets go; it has no layout yet. Its margins are the frame's affair.
    QWidget* content() const { return m_content; }
    // Less air round the content, for tables that run to the edges.
    void setContentMargins(int horizontal, int vertical);
    // Made on first use.
    StepStrip* steps();
    ActionBar* footer();
    // The footer that a .ui form holds at its end, moved out of the content. Call it before footer().
    void setFooter(ActionBar* footer);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    class ContentArea;
    int roomForContent() const; // height left for it on the screen

    QVBoxLayout* m_column;
    QWidget* m_titleRow;
    ElidedLabel* m_title;
    ElidedLabel* m_subtitle;
    QToolButton* m_close;
    StepStrip* m_steps = nullptr;
    QVBoxLayout* m_body;
    QWidget* m_content;
    ContentArea* m_area;
    ActionBar* m_footer = nullptr;
    QPointer<QWidget> m_scrim;
};
