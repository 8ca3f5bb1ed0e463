// tests/foundry/look/game_start.h
//
// A game whose scripts execute each other, on a platform in memory.

#pragma once

#include <gtest/gtest.h>

#include "console/files/start_run.h"
#include "platform/memory/memory_platform.h"
#include "tests/support/scripted_user.h"

namespace lv {

class GameStart : public ::testing::Test {
  protected:
    GameStart() {
        system.Disk.AddFile("C:\\QUAKE\\ID1\\autoexec.cfg",
                            "bind x +jump\nsensitivity 3\nexec more.cfg\nexec gone.cfg\n");
        system.Disk.AddFile("C:\\QUAKE\\ID1\\more.cfg", "alias zoom \"fov 30\"\n");
        system.Disk.AddFile("C:\\QUAKE\\ID1\\my.cfg", "bind x +attack\nbind y \"impulse 7\nalias a \"a\"\n");
        request.Played.Of = Console::Quake;
        request.Played.GameKind = Game::Quake;
        request.Played.Directory = "C:\\QUAKE";
        request.Played.Base = "ID1";
        request.Commands = {"exec my.cfg"};
    }

    MemoryPlatform system;
    ScriptedUser user;
    lv::Run run{system.Services, user};
    StartRequest request;
};

}  // namespace lv
