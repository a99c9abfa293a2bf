#include "look/style/Theme.h"
#include "look/widgets/DeskMessageBox.h"
#include "look/widgets/ProgressWindow.h"

#include <QApplication>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <gmock/gmock.h>

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
    const struct
    {
        Kind kind;
        Answer preset;
        QList<Qt::Key> keys;
        Answer expected;
    } cases[] = {
        {Kind::Information, Answer::Ok, {Qt::Key_Return}, Answer::Ok},
        {Kind::Information, Answer::Ok, {Qt::Key_Escape}, Answer::Ok},
        {Kind::Warning, Answer::Ok, {Qt::Key_Space}, Answer::Ok},
        {Kind::Question, Answer::Yes, {Qt::Key_Return}, Answer::Yes},
        {Kind::Question, Answer::Yes, {Qt::Key_Enter}, Answer::Yes},
        {Kind::Question, Answer::Yes, {Qt::Key_Escape}, Answer::No},
        {Kind::Question, Answer::Yes, {Qt::Key_Tab, Qt::Key_Return}, Answer::No},
        {Kind::Question, Answer::No, {Qt::Key_Return}, Answer::No},
        {Kind::Question, Answer::No, {Qt::Key_Tab, Qt::Key_Return}, Answer::Yes},
    };
    for (const auto& each : cases) {
        DeskMessageBox box(each.kind, u"Save the changes?"_s, u"Information"_s);
        box.setDefaultAnswer(each.preset);
        const Answer answer = AskWith(box, [&] {
            for (const Qt::Key key : each.keys)
                QTest::keyClick(box.focusWidget() ? box.focusWidget() : &box, key);
        });
        EXPECT_EQ(answer, each.expected) << "kind " << static_cast<int>(each.kind) << " key " << each.keys.first();
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
