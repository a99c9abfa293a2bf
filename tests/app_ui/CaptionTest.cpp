#include "app/Station.h"
#include "app/language/Languages.h"
#include "app/ui/Form_Initial.h"
#include "look/Theme.h"
#include "platform/MsgBox.h"
#include "platform/Wait.h"
#include "tests/store/StoreFixture.h"
#include "tests/walkthrough/Captions.h"
#include "tests/walkthrough/DeskWindows.h"

#include <QApplication>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyTheme(*application, Scheme::Light);
    return application;
}
const bool g_registered = (g_applicationFactory = MakeApplication, true);

class CaptionTest : public StoreFixture
{
protected:
    ~CaptionTest() override
    {
        SetMsgBoxHandler(nullptr);
        SetBoxStyles(false);
        SetClosing(false);
        SetLanguage(1);
        QApplication::setLayoutDirection(Qt::LeftToRight);
    }
};

} // namespace

// Every window at its default size, in one desk that goes from language to language: what does not fit is printed.
TEST_F(CaptionTest, FitEveryWindowInEveryLanguage)
{
    open();
    execute(u"UPDATE BasicDefault SET iLanguage=1"_s);
    CloseDatabases(databases);
    SetMsgBoxHandler([](const QString&, qint32, const QString&) { return MsgResult::No; });
    const auto owner = std::make_unique<Station>();
    Form_Initial desk(*owner);
    ASSERT_TRUE(desk.Form_Load());
    desk.resize(1280, 720);
    desk.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&desk));
    for (int language = 1; language <= kLanguages; ++language) {
        SetLanguage(language);
        SetBoxStyles(language == kRightToLeftLanguage);
        desk.ChangeLanguage();
        QStringList cut;
        int windows = 0;
        VisitWindows(desk, *owner, [&](const QString& name, QWidget& window) {
            ++windows;
            const QStringList lines = CutCaptions(window);
            for (const QString& line : lines)
                cut << name + u" / "_s + line;
        });
        EXPECT_GT(windows, 25);
        EXPECT_LE(desk.minimumSizeHint().width(), 1280) << "language " << language;
        EXPECT_LE(desk.minimumSizeHint().height(), 720) << "language " << language;
        EXPECT_TRUE(cut.isEmpty()) << "language " << language << '\n' << cut.join(u'\n').toStdString();
    }
}
