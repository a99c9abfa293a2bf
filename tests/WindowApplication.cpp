#include "look/style/Theme.h"
#include "tests/TestMain.h"

#include <QAbstractItemModelTester>
#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QApplication>
#include <QFile>

namespace {

// The screen is one that a desk has, not the 800 by 800 of the platform without a display. Its description has to be in
// a file.
void SettleScreen()
{
    if (qgetenv("QT_QPA_PLATFORM") != "offscreen")
        return;
    static QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("screen.json")));
    if (file.open(QIODevice::WriteOnly))
        file.write(R"({"screens":[{"name":"desk","x":0,"y":0,"width":1920,"height":1080}]})");
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + QFile::encodeName(file.fileName()));
}

// Whatever a view shows is held to the rules of models for as long as it lives; a breach ends the program. A test that
// is too slow that way sets the application's property `modelsUnwatched`.
class ModelWatch : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && !qApp->property("modelsUnwatched").toBool()) {
            if (const auto* view = qobject_cast<QAbstractItemView*>(watched))
                watch(view->model());
        }
        return false;
    }

private:
    static void watch(QAbstractItemModel* model)
    {
        using Tester = QAbstractItemModelTester;
        if (model && !model->findChild<Tester*>({}, Qt::FindDirectChildrenOnly))
            new Tester(model, Tester::FailureReportingMode::Fatal, model);
        if (const auto* proxy = qobject_cast<QAbstractProxyModel*>(model))
            watch(proxy->sourceModel());
    }
};

} // namespace

std::unique_ptr<QCoreApplication> MakeApplication(int& argc, char** argv)
{
    SettleScreen();
    auto application = std::make_unique<QApplication>(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ApplyTheme(*application, InitialScheme());
    application->installEventFilter(new ModelWatch(application.get()));
    return application;
}

// The toolkit and the fonts keep much to the end: leaks are looked for in the programs without windows.
extern "C" const char* __asan_default_options();
const char* __asan_default_options()
{
    return "detect_leaks=0";
}
