#pragma once

namespace tallyvane {

/// What the desktop does for the program in one topic. The class of a topic derives from this with methods that do
/// nothing, so that the program also works unseen; the desktop's class overrides them.
template <class Topic>
class Service {
public:
    Service() = default;
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;
    virtual ~Service() = default;

    /// The service that the program uses: one that does nothing until another is set.
    static Topic& inUse() { return *slot(); }
    /// Null for the one that does nothing. The caller keeps the service, and sets null before it goes.
    static void use(Topic* service) { slot() = service != nullptr ? service : unseen(); }

private:
    static Topic* unseen() {
        static Topic service;
        return &service;
    }
    static Topic*& slot() {
        static Topic* service = unseen();
        return service;
    }
};

} // namespace tallyvane
