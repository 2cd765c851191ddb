#pragma once

#include <functional>
#include <memory>
#include <string>

#include "platform/base/service.h"
#include "platform/files/folder_item.h"

namespace tallyvane {

/// A running download. Destroying it cancels it; `done` is then not called.
class Download {
public:
    Download() = default;
    Download(const Download&) = delete;
    Download& operator=(const Download&) = delete;
    virtual ~Download() = default;
};

/// What fetches pages. The plain service fetches none.
class Downloads : public Service<Downloads> {
public:
    /// Starts to fetch the page of an "http" address into a file. `done` is called once with the server's status when
    /// the page has come whole, in time and in bounds, and never otherwise.
    virtual std::unique_ptr<Download>
    start(const std::string& /*address*/, const std::string& /*path*/,
          std::function<void(int status)> /*done*/) { // NOLINT(performance-*): others keep it
        return nullptr;
    }
};

/// Fetches a page into a file, in the background. Whoever wants to hear of it derives from this class.
class HTTPSocket {
public:
    HTTPSocket() = default;
    HTTPSocket(const HTTPSocket&) = delete;
    HTTPSocket& operator=(const HTTPSocket&) = delete;
    virtual ~HTTPSocket() = default;

    /// Starts to fetch the page of an "http" address, and returns at once. A fetch that was going on ends.
    void Get(const std::string& address, const FolderItem& file);

    /// The page is in the file, whatever the server's status says of it. Nothing is heard of a page that did not come
    /// whole, in time and in bounds.
    virtual void Event_DownloadComplete(const std::string& address, int status, const FolderItem& file) = 0;

private:
    std::unique_ptr<Download> download_;
};

} // namespace tallyvane
