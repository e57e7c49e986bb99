#pragma once

#include "platform/platform.h"
#include "support/fakedevices.h"
#include "support/memorydevices.h"
#include "ui/mainwindow/windowfixture.h"

#include <memory>

QT_FORWARD_DECLARE_CLASS(QTreeWidgetItem)

// A machine with drives 0 and 1 in memory and the files of the system.
class DriveMachine : public platform::Platform
{
public:
    static constexpr qint64 Size = 4 << 20;

    MemoryDevices memory;
    FakeSession fakeSession;

    DriveMachine();
    platform::Files &files() override { return m_files->files(); }
    platform::Folders &folders() override { return m_files->folders(); }
    platform::Devices &devices() override { return memory; }
    platform::Session &session() override { return fakeSession; }

private:
    std::unique_ptr<platform::Platform> m_files = platform::createPlatform({{}, true});
};

// A window on such a machine: WindowFixture(std::move(drives.owned)).
struct DriveWindow
{
    std::unique_ptr<DriveMachine> owned = std::make_unique<DriveMachine>();
    DriveMachine &machine = *owned;
    MemoryDevices &memory = machine.memory;

    // A volume on both drives.
    static MemoryDriveVolume mirror();
};

QTreeWidgetItem *diskRow(const WindowFixture &fixture, int index);
// Chooses the row on the disk page and goes on to the methods.
void choose(const WindowFixture &fixture, QTreeWidgetItem *row);
