#include "app/ui/FileChooserWindow.h"

#include "look/tables/Tables.h"
#include "platform/FileChooser.h"
#include "platform/FolderChooser.h"

#include <QApplication>
#include <QFileDialog>
#include <QHeaderView>
#include <QTreeView>

using namespace Qt::StringLiterals;

namespace {

constexpr int kTimeColumn = 3;

QWidget* OwnerWindow()
{
    QWidget* modal = QApplication::activeModalWidget();
    return modal ? modal : QApplication::activeWindow();
}

QString Ask(QFileDialog& dialog)
{
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    // Paths and patterns read from the left in every language.
    for (const QLatin1String name : {"fileNameEdit"_L1, "fileTypeCombo"_L1, "lookInCombo"_L1}) {
        if (auto* field = dialog.findChild<QWidget*>(name))
            field->setLayoutDirection(Qt::LeftToRight);
    }
    if (auto* list = dialog.findChild<QTreeView*>(u"treeView"_s)) {
        list->header()->setStretchLastSection(false);
        list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        list->header()->setSectionResizeMode(0, QHeaderView::Stretch);
        MonospaceColumn(list, kTimeColumn);
    }
    dialog.resize(820, 480);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QString AskFile(const FileQuestion& question)
{
    QString patterns = question.filter;
    QFileDialog dialog(OwnerWindow(), question.title, question.folder, patterns.replace(u';', u' '));
    dialog.setObjectName(u"Form_OpenFile"_s);
    dialog.setFileMode(QFileDialog::ExistingFile);
    return Ask(dialog);
}

QString AskFolder(const QString& title)
{
    QFileDialog dialog(OwnerWindow(), title);
    dialog.setObjectName(u"OpenDirectoryTV"_s);
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return Ask(dialog);
}

} // namespace

void InstallFileChooserWindow()
{
    SetFileChooserHandler(AskFile);
    SetFolderHandler(AskFolder);
}
