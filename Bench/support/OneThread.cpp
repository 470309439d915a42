// SPDX-License-Identifier: MIT
#include "support/OneThread.h"

#include <QtCore/QThreadPool>
#include <QtGui/QGuiApplication>

namespace vq::bench {

namespace {

/// Qt's text needs an application; this one has no screen.
void startApplication()
{
    static int argumentCount = 3;
    static char program[] = "bench";
    static char option[] = "-platform";
    static char platform[] = "offscreen";
    static char* arguments[] = {program, option, platform, nullptr};
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {}); // it misses a desktop
    static const QGuiApplication application(argumentCount, arguments);
}

} // namespace

int onOneThread(const std::function<int()>& work)
{
    startApplication();
    int result = 0;
    QThreadPool& pool = *QThreadPool::globalInstance();
    pool.setMaxThreadCount(1);
    pool.start([&] { result = work(); });
    pool.waitForDone();
    return result;
}

} // namespace vq::bench
