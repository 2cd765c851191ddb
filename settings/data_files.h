/// Where every file of the user lives, and how its fields are joined. Nothing is quoted or escaped in any of them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files/folder_item.h"
#include "platform/files/text_output_stream.h"

namespace tallyvane::DataFiles {

/// Between the fields of a line.
inline constexpr std::string_view fieldSeparator = "@#@";
/// Between the parts of a field, or of an entry in a list.
inline constexpr std::string_view subfieldSeparator = "@@@";
/// Between the entries of a list.
inline constexpr std::string_view entrySeparator = "###";
/// A line end inside a field.
inline constexpr std::string_view lineEndMark = "$%$";

/// The place of a file in a folder, whether that is there or not. The name has no "/" but between folders.
std::optional<FolderItem> placeIn(const FolderItem& folder, std::string_view name);
/// The first of "name", "name 2", "name 3" and so on that a folder does not hold yet; empty when that folder is not
/// there.
std::optional<FolderItem> freePlace(const FolderItem& folder, const std::string& name);
/// The name with a number: "name" for 1, "name 2" for 2 and so on.
std::string numbered(const std::string& name, int number);

/// The application's own folder in the desktop's folder for application data. Empty where the desktop has none.
std::optional<FolderItem> applicationFolder();
/// A file of the application's folder; empty when that folder does not exist.
std::optional<FolderItem> applicationFile(std::string_view name);
/// The same, with the folder made first where it is missing; its place also where it can't be made.
std::optional<FolderItem> applicationFileToWrite(std::string_view name);
/// A file of the folder of that same name inside the application's folder, where some windows keep theirs; empty when
/// it does not exist.
std::optional<FolderItem> innerFile(std::string_view name);
/// A stream on a file; none without a file, and for one that is missing or unreadable.
std::optional<TextInputStream> openText(const std::optional<FolderItem>& file);
/// A stream that replaces a file; none without a file, and for one that can't be opened.
std::optional<TextOutputStream> createText(const std::optional<FolderItem>& file);

inline constexpr std::string_view applicationName = "Tallyvane";
// In the application's folder, unless noted
inline constexpr std::string_view dayTable = "7VXData"; // in the data folder
inline constexpr std::string_view preferences = "Brindlemarks Preferences"; // read here, written to the data folder
inline constexpr std::string_view headings = "7VXHeadings";
inline constexpr std::string_view runningLogs = "QVXLogData"; // the logs window has one more in the inner folder
inline constexpr std::string_view journal = "Tallyvane Journal";
inline constexpr std::string_view windowData = "QVXWindowData";
inline constexpr std::string_view tableHeight = "Table Height";
inline constexpr std::string_view contacts = "QVXContacts";
inline constexpr std::string_view medications = "QVXMedications";
inline constexpr std::string_view visitPage = "Visit Page";
inline constexpr std::string_view resources = "QVXFileData"; // in the inner folder
inline constexpr std::string_view details = "Details"; // a folder: a file for each day that has details

} // namespace tallyvane::DataFiles
