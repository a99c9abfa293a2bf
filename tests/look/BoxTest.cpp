#include "look/style/Theme.h"
#include "look/widgets/ActionBar.h"
#include "look/widgets/DeskMessageBox.h"
#include "look/widgets/Fields.h"
#include "look/widgets/ProgressWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QSet>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <gmock/gmock.h>
#include <optional>

using namespace Qt::StringLiterals;

namespace {

using Kind = DeskMessageBox::Kind;
using Answer = DeskMessageBox::Answer;

// Asks, and once the box is up does what the user does.
Answer AskWith(DeskMessageBox& box, const std::function<void()>& user)
{
    QTimer::singleShot(0, &box, [&box, user] {
        EXPECT_TRUE(QTest::qWaitForWindowActive(&box));
        user();
    });
    return box.ask();
}

} // namespace

TEST(LookBox, KeysAnswer)
{
    const std::tuple<Kind, std::optional<Answer>, QList<Qt::Key>, Answer> cases[] = {
        {Kind::Information, Answer::Ok, {Qt::Key_Return}, Answer::Ok},
        {Kind::Information, Answer::Ok, {Qt::Key_Escape}, Answer::Ok},
        {Kind::Warning, Answer::Ok, {Qt::Key_Space}, Answer::Ok},
        {Kind::Question, Answer::Yes, {Qt::Key_Return}, Answer::Yes},
        {Kind::Question, Answer::Yes, {Qt::Key_Enter}, Answer::Yes},
        {Kind::Question, Answer::Yes, {Qt::Key_Escape}, Answer::No},
        {Kind::Question, Answer::Yes, {Qt::Key_Tab, Qt::Key_Return}, Answer::No},
        {Kind::Question, Answer::No, {Qt::Key_Return}, Answer::No},
        {Kind::Question, Answer::No, {Qt::Key_Tab, Qt::Key_Return}, Answer::Yes},
        {Kind::QuestionOrStay, {}, {Qt::Key_Return}, Answer::Yes},
        {Kind::QuestionOrStay, {}, {Qt::Key_Escape}, Answer::Cancel},
        {Kind::QuestionOrStay, {}, {Qt::Key_Backtab, Qt::Key_Return}, Answer::No},
        {Kind::Destroy, {}, {Qt::Key_Return}, Answer::No},
        {Kind::Destroy, {}, {Qt::Key_Space}, Answer::No},
        {Kind::Destroy, {}, {Qt::Key_Escape}, Answer::No},
        {Kind::Destroy, {}, {Qt::Key_Tab, Qt::Key_Return}, Answer::Yes},
    };
    for (const auto& [kind, preset, keys, expected] : cases) {
        DeskMessageBox box(kind, u"Save the changes?"_s, u"Information"_s);
        if (preset)
            box.setDefaultAnswer(*preset);
        const Answer answer = AskWith(box, [&] {
            for (const Qt::Key key : keys)
                QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, key);
        });
        EXPECT_EQ(answer, expected) << "kind " << static_cast<int>(kind) << " key " << keys.first();
    }
}

TEST(LookBox, ButtonsCarryTheGivenLabels)
{
    DeskMessageBox box(Kind::Question, u"Speichern?"_s, u"Information"_s);
    box.setButtonTexts({}, u"Ja"_s, u"Nein"_s);
    EXPECT_EQ(box.findChild<QPushButton*>(u"btnYes"_s)->text(), u"Ja"_s);
    EXPECT_EQ(box.findChild<QPushButton*>(u"btnNo"_s)->text(), u"Nein"_s);
    EXPECT_EQ(box.findChild<QPushButton*>(u"btnOk"_s), nullptr);
    const Answer answer =
        AskWith(box, [&box] { QTest::mouseClick(box.findChild<QPushButton*>(u"btnNo"_s), Qt::LeftButton); });
    EXPECT_EQ(answer, Answer::No);
}

TEST(LookBox, WrongFailedAndDoneDoNotLookAlike)
{
    QSet<QString> icons;
    for (const Kind kind :
         {Kind::Information, Kind::Success, Kind::Warning, Kind::Error, Kind::Question, Kind::Destroy})
        icons << DeskMessageBox(kind, u"Text"_s, u"Information"_s)
                     .findChild<QWidget*>(u"badge"_s)
                     ->property("icon")
                     .toString();
    EXPECT_EQ(icons.size(), 6);
    DeskMessageBox box(Kind::Destroy, u"Text"_s, u"Information"_s);
    EXPECT_EQ(box.findChild<QPushButton*>(u"btnYes"_s)->property("kind").toString(), u"danger"_s);
}

TEST(LookDialog, IsNeverLargerThanItsScreenAndScrollsInstead)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget owner;
    owner.setGeometry(screen.right() - 200, screen.bottom() - 100, 200, 100);
    owner.show();
    DialogFrame dialog(&owner);
    auto* column = new QVBoxLayout(dialog.content());
    for (int i = 0; i < 80; ++i)
        column->addWidget(new QLineEdit);
    QPushButton* close = dialog.footer()->addButton(u"Close"_s);
    dialog.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    const QLineEdit* last = dialog.findChildren<QLineEdit*>().last();
    EXPECT_GT(dialog.content()->height(), screen.height());
    EXPECT_TRUE(screen.contains(dialog.geometry())) << dialog.height();
    EXPECT_TRUE(dialog.rect().contains(close->mapTo(&dialog, close->rect().bottomRight())));
    dialog.findChildren<QLineEdit*>().first()->setFocus();
    for (int i = 0; i < 79; ++i)
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_TRUE(last->hasFocus());
    EXPECT_TRUE(last->visibleRegion().boundingRect().height() == last->height()) << "the focus is followed";
}

TEST(LookFields, TheFieldAtFaultIsOutlinedUntilItChanges)
{
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    auto* line = new QLineEdit(u"a,b"_s);
    auto* combo = new QComboBox;
    combo->addItems({u"1"_s, u"2"_s});
    auto* spin = new QSpinBox;
    for (QWidget* field : std::initializer_list<QWidget*>{line, combo, spin})
        column->addWidget(field);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto edge = [&window](const QWidget* field) {
        return window.grab().toImage().pixelColor(field->geometry().center().x(), field->geometry().top());
    };
    EXPECT_EQ(edge(spin), Token("control"_L1)) << "a border that can be seen";
    for (QWidget* field : std::initializer_list<QWidget*>{line, combo, spin}) {
        SCOPED_TRACE(field->metaObject()->className());
        PointAtFault(field);
        PointAtFault(field); // told twice
        EXPECT_TRUE(field->hasFocus());
        EXPECT_EQ(edge(field), Token("bad"_L1));
        QTest::keyClick(field, field == line ? Qt::Key_X : field == combo ? Qt::Key_Down : Qt::Key_Up);
        EXPECT_NE(edge(field), Token("bad"_L1));
    }
    EXPECT_EQ(line->text(), u"x"_s) << "the whole text is selected";
}

TEST(LookBox, TextIsWholeSelectableAndTurnsRound)
{
    const QString longText = QString(u"Die Änderung wird beim nächsten Start wirksam. "_s).repeated(60);
    for (const QString& text : {u"Short"_s, longText}) {
        DeskMessageBox box(Kind::Information, text, u"Information"_s);
        box.show();
        auto* label = box.findChild<QLabel*>(u"lbText"_s);
        EXPECT_EQ(label->text(), text);
        EXPECT_TRUE(label->textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
        EXPECT_GE(label->height(), label->heightForWidth(label->width()));
        EXPECT_LE(box.height(), 600);
        box.setRightToLeftText(true);
        EXPECT_TRUE(label->alignment().testFlag(Qt::AlignRight));
        EXPECT_EQ(label->layoutDirection(), Qt::RightToLeft);
    }
}

TEST(LookBox, DimsTheWindowBehindWhileItIsOpen)
{
    QWidget window;
    window.resize(600, 400);
    window.show();
    const QColor before = window.grab().toImage().pixelColor(5, 5);
    {
        DeskMessageBox box(Kind::Information, u"Text"_s, u"Information"_s, &window);
        box.show();
        EXPECT_LT(window.grab().toImage().pixelColor(5, 5).lightness(), before.lightness());
        window.resize(700, 500);
        EXPECT_LT(window.grab().toImage().pixelColor(690, 490).lightness(), before.lightness());
        box.reject();
        EXPECT_EQ(window.grab().toImage().pixelColor(5, 5), before);
    }
}

TEST(LookProgress, OnlyAnOfferToStopCanBeTaken)
{
    ProgressWindow window(u"Update Database ..."_s);
    EXPECT_EQ(window.objectName(), u"formProgressBar"_s);
    QSignalSpy cancelled(&window, &ProgressWindow::cancelled);
    window.show();
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(cancelled.count(), 0);
    window.setCancelText(u"Cancel"_s);
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_TRUE(window.isVisible());
    EXPECT_EQ(cancelled.count(), 1);
    window.close();
    EXPECT_FALSE(window.isVisible());
}
