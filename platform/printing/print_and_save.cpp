#include "platform/printing/print_and_save.h"

#include <algorithm>

#include "platform/files/text_output_stream.h"
#include "platform/printing/printing.h"

namespace tallyvane {

void printText(const std::string& text, const std::string& title) {
    constexpr double left = 50;
    constexpr double titleBaseline = 50;
    constexpr double mostHeight = 648;
    constexpr double width = 475;
    const double top = title.empty() ? 50 : 60;
    const std::unique_ptr<Graphics> g = OpenPrinterDialog();
    if (!g)
        return;
    g->shrinkToFit(left + width, 0); // paper can be narrower
    if (!title.empty()) {
        g->Bold(true);
        g->DrawString(title, left, titleBaseline);
        g->Bold(false);
    }
    const double blockHeight = std::min(mostHeight, g->Height() - top); // paper can be lower
    StyledTextPrinter printer(*g, text, 540);
    printer.Width(width);
    while (!printer.EndOfText()) {
        printer.DrawBlock(left, top, blockHeight);
        if (!printer.EndOfText())
            g->NextPage();
    }
}

void saveText(const std::string& text, const SaveAsDialog& dialog) {
    const std::optional<FolderItem> file = dialog.ShowModal();
    if (!file)
        return;
    if (std::optional<TextOutputStream> stream = TextOutputStream::Create(*file)) {
        stream->Write(text);
        stream->Close();
    }
}

} // namespace tallyvane
