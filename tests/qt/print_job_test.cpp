#include "platform/qt/print_job.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>

#include "platform/printing/printing.h"

namespace tallyvane {

namespace {

std::unique_ptr<QPrinter> printerTo(const QString& file) {
    auto printer = std::make_unique<QPrinter>(QPrinter::HighResolution);
    printer->setOutputFileName(file);
    printer->setPageSize(QPageSize(QPageSize::Letter));
    printer->setPageMargins(QMarginsF(18, 18, 18, 18), QPageLayout::Point);
    return printer;
}

std::string textOf(const QString& pdf) {
    QProcess reader;
    reader.start("pdftotext", {"-layout", pdf, "-"});
    reader.waitForFinished();
    return reader.readAllStandardOutput().toStdString();
}

TEST(PrintJob, AnythingPrintedIsTextInThePdf) {
    const QTemporaryDir folder;
    const QString file = folder.filePath("journal.pdf");
    {
        const std::unique_ptr<PrintJob> job = PrintJob::begin(printerTo(file), 72);
        ASSERT_NE(job, nullptr);
        EXPECT_EQ(std::pair(job->Width(), job->Height()), std::pair(612.0 - 36, 792.0 - 36)) << "in points";
        std::string text;
        for (int line = 1; line <= 120; ++line)
            text += "line " + std::to_string(line) + " of the journal\n";
        StyledTextPrinter printer(*job, text, 475);
        while (!printer.EndOfText()) {
            printer.DrawBlock(50, 50, 648);
            if (!printer.EndOfText())
                job->NextPage();
        }
    }
    const std::string text = textOf(file);
    for (int line = 1; line <= 120; ++line)
        EXPECT_NE(text.find("line " + std::to_string(line) + " of the journal\n"), std::string::npos) << line;
    EXPECT_EQ(std::count(text.begin(), text.end(), '\f'), 3) << "pages";
}

TEST(PrintJob, APageShrinksForWhatIsHigher) {
    const QTemporaryDir folder;
    const std::unique_ptr<PrintJob> job = PrintJob::begin(printerTo(folder.filePath("page.pdf")), 72);
    ASSERT_NE(job, nullptr);
    job->shrinkToFit(100, 100);
    EXPECT_DOUBLE_EQ(job->Height(), 756) << "there is room";
    job->shrinkToFit(0, 1512);
    EXPECT_DOUBLE_EQ(job->Width(), 2 * 576);
    EXPECT_DOUBLE_EQ(job->Height(), 1512);
    job->NextPage();
    EXPECT_DOUBLE_EQ(job->Height(), 1512);
}

TEST(PrintJob, PaperResolutionLeavesRoomForTickLabels) {
    const QtPaper paper;
    EXPECT_GE(paper.resolution(), 72);
    EXPECT_LE(paper.resolution(), 100) << "20 dots hold a label of 12 points";
}

TEST(PrintJob, APrinterThatTakesNothingGivesNoPages) {
    EXPECT_EQ(PrintJob::begin(printerTo("/proc/no such folder/journal.pdf"), 72), nullptr);
}

} // namespace

} // namespace tallyvane
