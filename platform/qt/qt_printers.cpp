#include "platform/qt/qt_printers.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QPdfWriter>
#include <QPrintDialog>
#include <QPrintPreviewDialog>

#include "platform/base/translation.h"
#include "platform/qt/convert.h"
#include "platform/qt/event_guard.h"
#include "platform/qt/print_job.h"
#include "platform/qt/qt_file_dialogs.h"

namespace tallyvane {

namespace {

/// Gives a PDF the ending that the user has not typed. False when a file of that name is to stay.
bool addPdfEnding(QPrinter& printer) {
    if (printer.outputFormat() != QPrinter::PdfFormat || printer.outputFileName().isEmpty())
        return true;
    const std::string typed = QFile::encodeName(printer.outputFileName()).toStdString();
    const std::string path = withEnding(typed, ".pdf");
    if (path != typed && !mayReplace(path)) // of the name as it was typed the dialog itself has asked
        return false;
    printer.setOutputFileName(QFile::decodeName(QByteArray::fromStdString(path)));
    return true;
}

/// The pages of a device that somebody else owns, in points.
class DevicePages : public PainterGraphics {
public:
    DevicePages(QPainter& painter, QPagedPaintDevice& device)
        : PainterGraphics(
              painter, device,
              device.pageLayout().paintRectPoints().translated(-device.pageLayout().paintRectPoints().topLeft())),
          device_(device) {}
    void NextPage() override { device_.newPage(); }

private:
    QPagedPaintDevice& device_;
};

QPageLayout layoutOf(const Paper* paper) {
    const auto* chosen = dynamic_cast<const QtPaper*>(paper);
    return chosen != nullptr ? chosen->layout() : makePrinter()->pageLayout();
}

/// False when the device takes nothing.
bool drawOn(QPagedPaintDevice& device, const DrawPages& draw) {
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    painter.scale(device.logicalDpiX() / static_cast<double>(pointsPerInch),
                  device.logicalDpiY() / static_cast<double>(pointsPerInch));
    deliver([&] {
        DevicePages pages(painter, device);
        draw(pages);
    });
    return painter.end();
}

/// The author of a document, in the only place where this version of Qt can put it.
QByteArray metadataOf(const PdfTexts& texts) {
    const auto escaped = [](const std::string& text) { return toQt(text).toHtmlEscaped(); };
    return QStringLiteral("<?xpacket begin='' id='W5M0MpCehiHzreSzNTczkc9d'?>"
                          "<x:xmpmeta xmlns:x='adobe:ns:meta/'>"
                          "<rdf:RDF xmlns:rdf='http://www.w3.org/1999/02/22-rdf-syntax-ns#'>"
                          "<rdf:Description rdf:about='' xmlns:dc='http://purl.org/dc/elements/1.1/'>"
                          "<dc:title><rdf:Alt><rdf:li xml:lang='x-default'>%1</rdf:li></rdf:Alt></dc:title>"
                          "<dc:creator><rdf:Seq><rdf:li>%2</rdf:li></rdf:Seq></dc:creator>"
                          "</rdf:Description></rdf:RDF></x:xmpmeta><?xpacket end='w'?>")
        .arg(escaped(texts.title), escaped(texts.author))
        .toUtf8();
}

} // namespace

std::unique_ptr<Paper> QtPrinters::makePaper() { return std::make_unique<QtPaper>(); }

std::unique_ptr<Graphics> QtPrinters::openDialog(const Paper* paper, int resolution, const std::string& pdfName) {
    std::unique_ptr<QPrinter> printer = makePrinter();
    if (const auto* chosen = dynamic_cast<const QtPaper*>(paper))
        printer->setPageLayout(chosen->layout());
    if (!pdfName.empty()) {
        printer->setOutputFormat(QPrinter::PdfFormat);
        printer->setOutputFileName(QDir::home().filePath(toQt(withEnding(pdfName, ".pdf"))));
    }
    QPrintDialog dialog(printer.get()); // of no window, which might go while the dialog is open
    do
        if (dialog.exec() != QDialog::Accepted)
            return nullptr;
    while (!addPdfEnding(*printer));
    return PrintJob::begin(std::move(printer), resolution);
}

void QtPrinters::preview(const Paper* paper, const std::string& title, const DrawPages& draw) {
    const std::unique_ptr<QPrinter> printer = makePrinter();
    printer->setPageLayout(layoutOf(paper));
    printer->setDocName(toQt(title));
    QPrintPreviewDialog dialog(printer.get());
    dialog.setWindowTitle(toQt(title));
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, &dialog,
                     [&](QPrinter* target) { drawOn(*target, draw); });
    dialog.exec();
}

std::string QtPrinters::pdfOf(const Paper* paper, const PdfTexts& texts, const DrawPages& draw) {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QPdfWriter writer(&bytes);
    writer.setPageLayout(layoutOf(paper));
    writer.setTitle(toQt(texts.title));
    writer.setCreator(QStringLiteral("Tallyvane"));
    if (!texts.author.empty())
        writer.setDocumentXmpMetadata(metadataOf(texts));
    return drawOn(writer, draw) ? bytes.data().toStdString() : std::string();
}

} // namespace tallyvane
