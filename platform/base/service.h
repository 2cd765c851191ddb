#pragma once

namespace tallyvane {

/// Base of a service of the desktop, such as printing: one instance at a time, which can be replaced. The class of a
/// service (Topic) has methods that do nothing, for tests and runs without a display; platform/qt overrides them.
template <class Topic>
class Service {
public:
    Service() = default;
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;
    virtual ~Service() = default;

    /// The one that the program uses: one that does nothing until another is set.
    static Topic& current() { return *slot(); }
    /// Sets the current service; null sets the one that does nothing. The caller owns it and ends by setting null.
    static void use(Topic* service) { slot() = service != nullptr ? service : defaultService(); }

private:
    static Topic* defaultService() {
        static Topic service;
        return &service;
    }
    static Topic*& slot() {
        static Topic* service = defaultService();
        return service;
    }
};

} // namespace tallyvane
