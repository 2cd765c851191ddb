/// Journal and logs, "QVXLogData".
#include "diary/running_logs.h"
#include "fuzz/fuzz.h"
#include "settings/data_files.h"
#include "settings/globals.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace tallyvane;
    const auto load = []() -> std::optional<std::string> {
        RunningLogs::load([](std::string journal) { Globals::gJournal = std::move(journal); });
        for (const std::string* log : {&Globals::gExercise, &Globals::gFood, &Globals::gJournal, &Globals::gMedication})
            if (Fuzz::runsIntoSeparator(*log))
                return std::nullopt;
        return Globals::gExercise + "\n--\n" + Globals::gFood + "\n--\n" + Globals::gJournal + "\n--\n" +
               Globals::gMedication;
    };
    Fuzz::checkReader(DataFiles::runningLogs, Fuzz::textOf(data, size), load, RunningLogs::save);
    return 0;
}
