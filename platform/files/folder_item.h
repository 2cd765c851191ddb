/// Files and folders by their place on disk, and the folders that the desktop gives to a program.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files/text_input_stream.h"

namespace tallyvane {

/// A place on disk, whether something stands there or not. An empty optional stands for none.
class FolderItem {
public:
    /// A "/" in the name of a child is kept on disk as ":". Empty when this folder does not exist, or the name is
    /// empty, "." or "..".
    [[nodiscard]] std::optional<FolderItem> Child(std::string_view name) const;

    bool Exists() const;
    bool Directory() const;
    const std::string& AbsolutePath() const { return path_; }
    /// The last part of the path.
    std::string Name() const { return path_.substr(path_.rfind('/') + 1); }
    /// Gives what stands there another name in the same folder; this place stays what it is. False, and nothing done,
    /// when that can't be or something of that name is there.
    [[nodiscard]] bool Name(std::string_view name) const;
    /// The name as the user sees it.
    std::string DisplayName() const { return Name(); }

    /// A text from which the file can be found again: a "file:" address without "@", "#", "www" or line ends, so that
    /// it is taken neither for a link nor for a separator.
    std::string GetSaveInfo() const;
    /// The file that such a text names. Empty for any other text, and for a file that is not there any more.
    [[nodiscard]] static std::optional<FolderItem> GetRelative(std::string_view saveInfo);

    /// Opens the file in the desktop's program for it; nothing when it is not there. A message tells when there is
    /// none.
    void Launch() const;
    /// Takes the file away, if it is there and can go.
    void Delete() const;

    /// Makes the folder, for its owner alone. False when it could not be made.
    [[nodiscard]] bool CreateAsFolder() const;
    /// Empty for what is no plain file or can't be read.
    [[nodiscard]] std::optional<TextInputStream> OpenAsTextFile() const;

    bool operator==(const FolderItem&) const = default;

private:
    friend std::optional<FolderItem> GetFolderItem(std::string_view path, int pathType);
    explicit FolderItem(std::string path) : path_(std::move(path)) {}

    std::string path_;
};

/// The place of an absolute path. Empty for any other text. `pathType` 0 is the only kind of path there is.
[[nodiscard]] std::optional<FolderItem> GetFolderItem(std::string_view path, int pathType = 0);

/// Folders of the desktop. Set once at start; empty where the desktop has none.
namespace SpecialFolder {
inline std::optional<FolderItem> ApplicationData;
inline std::optional<FolderItem> UserHome;
/// Of the user alone.
inline std::optional<FolderItem> Temporary;
/// For what a program keeps from one run to the next and the user need not know. It may still have to be made.
inline std::optional<FolderItem> State;
} // namespace SpecialFolder

} // namespace tallyvane
