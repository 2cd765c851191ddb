#include "platform/files/save_each.h"

#include <exception>

#include "platform/files/system_files.h"

namespace tallyvane {

void saveEach(std::initializer_list<std::function<void()>> saves) {
    std::exception_ptr failure;
    for (const std::function<void()>& save : saves) {
        try {
            save();
        } catch (const IOException&) {
            failure = failure ? failure : std::current_exception();
        }
    }
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace tallyvane
