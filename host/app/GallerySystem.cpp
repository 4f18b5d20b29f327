// SPDX-FileCopyrightText: 2026 The RkBaseUI developers
// SPDX-License-Identifier: LGPL-3.0-or-later

#include "app/GalleryParts.h"
#include "app/GalleryWindows.h"
#include "app/HostWindow.h"
#include "app/SystemPage.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace {

using GalleryParts::Window;

/// A computer that is the same wherever the pictures are made.
SystemValues fieldOffice()
{
    SystemValues values;
    values.processorName = QStringLiteral("Intel(R) Xeon(R) Gold 6230 CPU @ 2.10GHz");
    values.processorIdentifier = QStringLiteral("Intel64 Family 6 Model 85 Stepping 7");
    values.processorCount = 40;
    values.processorMhz = QStringLiteral("2100");
    values.storageCount = 4;
    values.diskNames =
        QStringList{QStringLiteral("Samsung SSD 970 EVO Plus 1TB"),
                    QStringLiteral("WDC WD40EZRZ-00GXCB0"), QStringLiteral("SanDisk Extreme Pro")};
    values.displayCount = 1;
    values.displayNames =
        QStringList{QStringLiteral("NVIDIA Corporation TU104GL [Quadro RTX 4000]")};
    values.graphicsMemory = QStringLiteral("7982MB");
    values.memory = QStringLiteral("65199");
    values.addressSpace = QStringLiteral("134217727");
    values.operatingSystem = QStringLiteral("Windows 10_10.0.17134_X64 ");
    return values;
}

Window systemPage()
{
    return std::make_unique<SystemPage>(nullptr, fieldOffice);
}

Window bareSystemPage()
{
    return std::make_unique<SystemPage>(nullptr, [] { return SystemValues(); });
}

/// As when the user asks for the page.
Window hostWindow()
{
    auto window = std::make_unique<HostWindow>(nullptr, fieldOffice);
    window->showPage(HostWindow::Page::System);
    return window;
}

void waitForPage(const SystemPage& page)
{
    const QDeadlineTimer deadline(5000);
    while (!page.isGathered() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
}

void waitForValues(QWidget& window)
{
    waitForPage(static_cast<SystemPage&>(window));
}

void waitForHost(QWidget& window)
{
    waitForPage(*static_cast<HostWindow&>(window).systemPage());
}

void copyValues(QWidget& window)
{
    waitForValues(window);
    static_cast<SystemPage&>(window).copy();
}

} // namespace

QVector<Gallery::Entry> gallerySystem()
{
    return {
        {QStringLiteral("system"), systemPage, waitForValues},
        {QStringLiteral("system-copied"), systemPage, copyValues},
        {QStringLiteral("system-not-found"), bareSystemPage, waitForValues},
        {QStringLiteral("host-system"), hostWindow, waitForHost},
    };
}
