/// What the user is told and asked about files that could not be saved or read: at the end of the program, and at the
/// start after an end with nobody to ask.
#pragma once

#include "platform/date.h"

namespace tallyvane::UnsavedWork {

/// Asks what to do about the files that still wait for a disk, until none waits or the user gives them up. It ends also
/// when the program is ended meanwhile.
void ask();

/// Offers what was kept at an end with nobody to ask. False when the program was ended meanwhile.
[[nodiscard]] bool offerRescued(const Date& today);

/// Tells of the user's files in whose place stands something that can be neither read nor written.
void tellOfUnreadable();

} // namespace tallyvane::UnsavedWork
