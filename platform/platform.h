// platform/platform.h
//
// All that the program asks of the system it runs on, as one struct of interfaces.

#pragma once

#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/desktop.h"
#include "platform/desktop_lists.h"
#include "platform/files.h"
#include "platform/known_places.h"
#include "platform/processes.h"
#include "platform/registry_trees.h"
#include "platform/settings_backing.h"
#include "platform/shortcuts.h"
#include "platform/single_instance.h"
#include "platform/user_registry.h"

namespace lv {

struct Platform {
    SettingsBacking& Settings;
    UserRegistry& Registry;
    Files& Disk;
    Processes& Programs;
    Clipboard& Clip;
    Clock& Time;
    SingleInstance* Instance = nullptr;  // null: any number of programs may run
    Desktop* Windows = nullptr;          // null: there is no desktop with windows of others
    KnownPlaces* Places = nullptr;       // null: nothing is known of where games lie
    DesktopLists* Lists = nullptr;       // null: no desktop reads such files
    RegistryTrees* Trees = nullptr;      // null: there is no registry of the system's own
    Shortcuts* Launchers = nullptr;      // null: the system has no place for shortcuts
};

}  // namespace lv
