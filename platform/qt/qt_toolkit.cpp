#include "platform/qt/qt_toolkit.h"

#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>
#include <QNetworkAccessManager>
#include <QNetworkProxy>
#include <QPointer>
#include <QPrintDialog>
#include <QPushButton>
#include <QScreen>
#include <QUrl>

#include <algorithm>

#include "platform/qt/canvas_accessible.h"
#include "platform/qt/convert.h"
#include "platform/qt/http_download.h"
#include "platform/qt/print_job.h"
#include "platform/qt/qt_bitmap.h"
#include "platform/qt/window_peer.h"
#include "platform/system_files.h"
#include "platform/translation.h"

namespace tallyvane {

namespace {

/// The frame of a window that is on the screen; null when it is not.
WindowFrame* frameOf(const Window* window) {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* frame = dynamic_cast<WindowFrame*>(widget);
        if (frame != nullptr && window != nullptr && frame->window() == window)
            return frame;
    }
    return nullptr;
}

/// Shows the dialog. The path is that of the disk, byte for byte; "" when the user cancelled.
std::string chosenPath(QFileDialog& dialog) {
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return {};
    return QFile::encodeName(dialog.selectedFiles().first()).toStdString();
}

/// "" stays empty.
std::string withEnding(std::string path, const std::string& ending) {
    if (!path.empty() && !path.ends_with(ending))
        path += ending;
    return path;
}

/// Whether nothing stands there, or the user agrees that it goes.
bool mayReplace(const std::string& path) {
    if (SystemFiles::kindOf(path) == SystemFiles::Kind::none)
        return true;
    const std::string name = path.substr(path.rfind('/') + 1);
    enum Choice : std::size_t { cancel, replace };
    return Ask(tr("\u201c%1\u201d is already there. Do you want to replace it?", {name}), {tr("Cancel"), tr("Replace")},
               cancel) == replace;
}

/// Gives a PDF the ending that the user has not typed. False when a file of that name is to stay.
bool settlePdfName(QPrinter& printer) {
    if (printer.outputFormat() != QPrinter::PdfFormat || printer.outputFileName().isEmpty())
        return true;
    const std::string typed = QFile::encodeName(printer.outputFileName()).toStdString();
    const std::string path = withEnding(typed, ".pdf");
    if (path != typed && !mayReplace(path)) // of the name as it was typed the dialog itself has asked
        return false;
    printer.setOutputFileName(QFile::decodeName(QByteArray::fromStdString(path)));
    return true;
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

/// The desktop's own settings are not asked: finding them can hold up the program for seconds.
QNetworkProxy proxyOfEnvironment() {
    const QUrl proxy = QUrl::fromUserInput(qEnvironmentVariable("http_proxy"));
    if (proxy.host().isEmpty())
        return QNetworkProxy(QNetworkProxy::NoProxy);
    constexpr int usualPort = 80;
    return {QNetworkProxy::HttpCachingProxy, proxy.host(), static_cast<quint16>(proxy.port(usualPort)),
            proxy.userName(), proxy.password()};
}

Window* windowInFront() {
    const auto* frame = dynamic_cast<WindowFrame*>(QApplication::activeWindow());
    return frame == nullptr ? nullptr : frame->window();
}

} // namespace

QtToolkit::QtToolkit() {
    installCanvasAccessibility();
    putInForce(this);
}

QtToolkit::~QtToolkit() { putInForce(nullptr); }

std::unique_ptr<WindowPeer> QtToolkit::show(Window& window) {
    return std::make_unique<QtWindowPeer>(new WindowFrame(window, frameOf(window.owner()), windowInFront));
}

Rect QtToolkit::placeFor(const Window& window) {
    const WindowFrame* owner = frameOf(window.owner());
    const QRect around =
        owner != nullptr ? owner->frameGeometry() : QGuiApplication::primaryScreen()->availableGeometry();
    QRect place(0, 0, window.Width(), window.Height());
    place.moveCenter(around.center());
    return {place.x(), place.y(), place.width(), place.height()};
}

std::shared_ptr<Bitmap> QtToolkit::makeBitmap(int width, int height) {
    return std::make_shared<QtBitmap>(width, height, qApp->devicePixelRatio());
}

void QtToolkit::message(const std::string& text) {
    // The window below may go while the message is up, and takes the message with it.
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::NoIcon, QStringLiteral("Tallyvane"), toQt(text),
                                                      QMessageBox::Ok, QApplication::activeWindow());
    box->setTextFormat(Qt::PlainText);
    box->exec();
    delete box;
}

std::optional<std::size_t> QtToolkit::ask(const std::string& question, const std::vector<std::string>& answers,
                                          std::size_t onEscape) {
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Tallyvane"), toQt(question));
    box.setTextFormat(Qt::PlainText);
    std::vector<QAbstractButton*> buttons;
    for (const std::string& answer : answers) // of one role they keep their order on every desktop
        buttons.push_back(box.addButton(toQt(answer), QMessageBox::ActionRole));
    box.setDefaultButton(static_cast<QPushButton*>(buttons.front()));
    box.setEscapeButton(buttons.at(onEscape));
    box.exec();
    if (quitAsked_ || box.clickedButton() == nullptr)
        return std::nullopt;
    const auto clicked = std::find(buttons.begin(), buttons.end(), box.clickedButton());
    return static_cast<std::size_t>(clicked - buttons.begin());
}

void QtToolkit::beep() { QApplication::beep(); }

std::string QtToolkit::askWhereToSave(const SaveAsDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setLabelText(QFileDialog::FileName, toQt(dialog.PromptText));
    chooser.setOption(QFileDialog::DontConfirmOverwrite); // it would ask about the name without its ending
    chooser.selectFile(toQt(dialog.SuggestedFileName));
    for (;;) {
        const std::string path = withEnding(chosenPath(chooser), dialog.Suffix);
        if (path.empty() || mayReplace(path))
            return path;
    }
}

std::string QtToolkit::askForFile(const OpenDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setFileMode(QFileDialog::ExistingFile);
    chooser.setNameFilters(nameFilters(dialog.Filter));
    return chosenPath(chooser);
}

std::string QtToolkit::askForFolder(const SelectFolderDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    return chosenPath(chooser);
}

std::unique_ptr<Paper> QtToolkit::makePaper() { return std::make_unique<QtPaper>(); }

std::unique_ptr<Graphics> QtToolkit::openPrinterDialog(const Paper* paper, int resolution, PrintTarget target) {
    std::unique_ptr<QPrinter> printer = makePrinter();
    if (const auto* chosen = dynamic_cast<const QtPaper*>(paper))
        printer->setPageLayout(chosen->layout());
    if (target == PrintTarget::pdf) {
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(QDir::home().filePath(toQt(tr("Tallyvane Report")) + QStringLiteral(".pdf")));
    }
    QPrintDialog dialog(printer.get()); // of no window, which might go while the dialog is open
    do
        if (dialog.exec() != QDialog::Accepted)
            return nullptr;
    while (!settlePdfName(*printer));
    return PrintJob::begin(std::move(printer), resolution);
}

std::unique_ptr<Download> QtToolkit::download(const std::string& address, const std::string& path,
                                              std::function<void(int status)> done) {
    if (!network_) {
        network_ = std::make_unique<QNetworkAccessManager>();
        network_->setProxy(proxyOfEnvironment());
    }
    return std::make_unique<HttpDownload>(*network_, address, path, std::move(done), timeLimit);
}

bool QtToolkit::openUrl(const std::string& address) { return QDesktopServices::openUrl(QUrl(toQt(address))); }

bool QtToolkit::openFile(const std::string& path) {
    return QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(QByteArray::fromStdString(path))));
}

void QtToolkit::quit(int code) {
    quitAsked_ = true;
    quitCode_ = code;
    QApplication::exit(code);
}

} // namespace tallyvane
