#include "platform/qt/qt_file_dialogs.h"

#include <QDir>
#include <QFileDialog>

#include "platform/base/text.h"
#include "platform/base/translation.h"
#include "platform/desktop/desktop.h"
#include "platform/files/system_files.h"
#include "platform/qt/convert.h"

namespace tallyvane {

namespace {

/// Shows the dialog. The path is that of the disk, byte for byte; "" when the user cancelled.
std::string chosenPath(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return QFile::encodeName(dialog.selectedFiles().first()).toStdString();
}

QStringList nameFilters(const std::string& endings) {
    const QString all = toQt(tr("All files")) + QStringLiteral(" (*)");
    if (endings == "all" || endings == "text")
        return {all};
    QStringList patterns;
    for (FieldWalk walk(endings, ","); !walk.atEnd();)
        patterns += QStringLiteral("*.") + toQt(walk.next());
    return {patterns.join(QLatin1Char(' ')), all};
}

} // namespace

std::string withEnding(std::string path, const std::string& ending) {
    if (!path.empty() && !path.ends_with(ending))
        path += ending;
    return path;
}

bool mayReplace(const std::string& path) {
    if (SystemFiles::kindOf(path) == SystemFiles::Kind::none)
        return true;
    const std::string name = path.substr(path.rfind('/') + 1);
    enum Choice : std::size_t { cancel, replace };
    return Ask(tr("\u201c%1\u201d is already there. Do you want to replace it?", {name}), {tr("Cancel"), tr("Replace")},
               cancel) == replace;
}

std::string QtFileDialogs::askWhereToSave(const SaveAsDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setLabelText(QFileDialog::FileName, toQt(dialog.PromptText));
    chooser.setOption(QFileDialog::DontConfirmOverwrite); // it would ask about the name without its ending
    chooser.selectFile(toQt(dialog.SuggestedFileName));
    for (;;) {
        std::string path = withEnding(chosenPath(chooser), dialog.Suffix);
        if (path.empty() || mayReplace(path))
            return path;
    }
}

std::string QtFileDialogs::askForFile(const OpenDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setFileMode(QFileDialog::ExistingFile);
    chooser.setNameFilters(nameFilters(dialog.Filter));
    return chosenPath(chooser);
}

std::string QtFileDialogs::askForFolder(const SelectFolderDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    return chosenPath(chooser);
}

} // namespace tallyvane
