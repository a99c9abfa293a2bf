#include "app/ui/FileChooserWindow.h"

#include "platform/FileChooser.h"

#include <QApplication>
#include <QFileDialog>

namespace {

QString Show(const FileQuestion& question)
{
    QWidget* owner = QApplication::activeModalWidget();
    QString patterns = question.filter;
    QFileDialog dialog(owner ? owner : QApplication::activeWindow(), question.title, question.folder,
                       patterns.replace(u';', u' '));
    dialog.setObjectName(QStringLiteral("Form_OpenFile"));
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace

void InstallFileChooserWindow()
{
    SetFileChooserHandler(Show);
}
