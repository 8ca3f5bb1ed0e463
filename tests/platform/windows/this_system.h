// tests/platform/windows/this_system.h
//
// The interfaces as Windows keeps them, for the tests of what every system promises.

#pragma once

#include <memory>
#include <string>

#include "platform/windows/registry_settings.h"
#include "platform/windows/windows_files.h"
#include "platform/windows/windows_registry.h"
#include "tests/support/windows/empty_key.h"
#include "tests/support/windows/test_drive.h"

namespace lv {

/// A drive with nothing on it.
struct SystemDisk {
    SystemDisk() { (void)Disk.ChangeDrive(std::string{Letter, ':'}); }

    TestDrive Drive;
    WindowsFiles Disk;
    char Letter = Drive.Letter();
};

/// Nothing of the applications that the tests write.
struct SystemSettings {
    EmptyKey Ours{L"Software\\VB and VBA Program Settings\\Lorvane 3D"};
    EmptyKey A{L"Software\\VB and VBA Program Settings\\a"};
    RegistrySettings Store{"Lorvane 3D"};

    /// The same store, as another program opens it.
    static std::unique_ptr<SettingsBacking> Another() { return std::make_unique<RegistrySettings>("Lorvane 3D"); }
};

struct SystemRegistry {
    EmptyKey Valve{L"Software\\Valve"};
    WindowsRegistry Registry;
};

}  // namespace lv
