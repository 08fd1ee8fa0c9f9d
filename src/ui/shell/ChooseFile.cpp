#include "ui/shell/ChooseFile.h"

#include "platform/Paths.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

std::function<QString(Public_Function::FilePurpose)> &FileAnswerer()
{
    static std::function<QString(Public_Function::FilePurpose)> answerer;
    return answerer;
}

} // namespace

void Public_Function::SetFileAnswerer(std::function<QString(FilePurpose)> answerer)
{
    FileAnswerer() = std::move(answerer);
}

QString Public_Function::ChooseTextFile(FilePurpose purpose, QWidget *owner)
{
    if (FileAnswerer())
        return FileAnswerer()(purpose);
    // The next dialog opens where the last one was left.
    static QString folder = QDir::homePath();
    QFileDialog dialog(owner, QFileDialog::tr(purpose == FilePurpose::Save ? "Save" : "Open"), folder);
    dialog.setObjectName(u"ChooseTextFile"_s);
    dialog.setNameFilter(u"Text file（*.txt） (*.txt)"_s);
    // The name of the filter says its pattern already.
    dialog.setOption(QFileDialog::HideNameFilterDetails);
    dialog.setDefaultSuffix(u"txt"_s);
    if (purpose == FilePurpose::Save) {
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
    } else {
        dialog.setFileMode(QFileDialog::ExistingFile);
    }
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    const QString chosen = dialog.selectedFiles().constFirst();
    folder = QFileInfo(chosen).path();
    return ProductPath(chosen);
}
