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
#include <QScreen>
#include <QUrl>

#include "platform/qt/canvas_accessible.h"
#include "platform/qt/convert.h"
#include "platform/qt/http_download.h"
#include "platform/qt/print_job.h"
#include "platform/qt/qt_bitmap.h"
#include "platform/qt/window_peer.h"
#include "platform/translation.h"

namespace tallyvane {

namespace {

/// The frame of a window that is on the screen; nil when it is not.
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

Answer QtToolkit::ask(const std::string& question, const std::string& yes, const std::string& no) {
    QMessageBox box(QMessageBox::NoIcon, QStringLiteral("Tallyvane"), toQt(question));
    box.setTextFormat(Qt::PlainText);
    const QAbstractButton* accept = box.addButton(toQt(yes), QMessageBox::AcceptRole);
    box.setEscapeButton(box.addButton(toQt(no), QMessageBox::RejectRole));
    box.exec();
    if (quitAsked_ || box.clickedButton() == nullptr)
        return Answer::none;
    return box.clickedButton() == accept ? Answer::yes : Answer::no;
}

void QtToolkit::beep() { QApplication::beep(); }

std::string QtToolkit::askWhereToSave(const SaveAsDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.setLabelText(QFileDialog::FileName, toQt(dialog.PromptText));
    chooser.selectFile(toQt(dialog.SuggestedFileName));
    return chosenPath(chooser);
}

std::string QtToolkit::askForFile(const OpenDialog& dialog) {
    QFileDialog chooser(nullptr, toQt(dialog.Title), QDir::homePath());
    chooser.setFileMode(QFileDialog::ExistingFile);
    chooser.setNameFilters(nameFilters(dialog.Filter));
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
    if (dialog.exec() != QDialog::Accepted)
        return nullptr;
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

void QtToolkit::openUrl(const std::string& address) { QDesktopServices::openUrl(QUrl(toQt(address))); }

void QtToolkit::openFile(const std::string& path) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(QFile::decodeName(QByteArray::fromStdString(path))));
}

void QtToolkit::quit(int code) {
    quitAsked_ = true;
    quitCode_ = code;
    QApplication::exit(code);
}

} // namespace tallyvane
