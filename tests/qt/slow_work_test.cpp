#include "platform/qt/qt_slow_work.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QTimer>

#include <future>
#include <stdexcept>

#include "platform/qt/event_guard.h"

namespace tallyvane {

namespace {

TEST(SlowWorkTest, TheEventLoopGoesOnAndWhatNobodyAskedForWaits) {
    std::promise<void> go;
    std::string order;
    QObject owner;
    {
        auto gone = std::make_unique<QObject>();
        // Both run while the work waits: the work ends only because they do.
        QTimer::singleShot(0, &owner, [&] {
            deliverUnasked(&owner, [&] { order += "held "; });
            deliverUnasked(gone.get(), [&] { order += "gone "; });
            QTimer::singleShot(0, &owner, [&] { go.set_value(); });
        });
        QtSlowWork().run("Saving...", [&] {
            go.get_future().wait();
            order += "work ";
        });
        order += "back ";
    }
    QCoreApplication::processEvents();
    EXPECT_EQ(order, "work back held ") << "an event whose owner is gone is dropped";
    deliverUnasked(&owner, [&] { order += "at once"; });
    EXPECT_EQ(order, "work back held at once");
}

TEST(SlowWorkTest, WhatTheWorkThrowsIsThrownToItsCaller) {
    int runs = 0;
    EXPECT_THROW(QtSlowWork().run("Saving...",
                                  [&] {
                                      ++runs;
                                      throw std::runtime_error("the disk is full");
                                  }),
                 std::runtime_error);
    QtSlowWork().run("Saving...", [&] { // a part of it is done in its place
        QtSlowWork().run("Saving...", [&] { ++runs; });
        ++runs;
    });
    EXPECT_EQ(runs, 3);
}

} // namespace

} // namespace tallyvane
