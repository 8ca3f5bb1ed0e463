// launcher/menu/catalog_menu.h
//
// What the menus of the six catalogs do.

#pragma once

#include "launcher/launcher.h"

namespace lv {

void ExeViewAll_Bar_Click(Launcher& launcher);
void ExeAddManual_Bar_Click(Launcher& launcher);
/// Hands over to the setup wizard, which is told what the catalog knows already.
void ExeAddScan_Bar_Click(Launcher& launcher);
/// The setup, as at the first start.
void SetUpGames_Bar_Click(Launcher& launcher);
void ExeEdit_Bar_Click(Launcher& launcher);
void ExeDelete_Bar_Click(Launcher& launcher);

void GameViewAll_Bar_Click(Launcher& launcher);
void GameAddManual_Bar_Click(Launcher& launcher);
void GameAddScan_Bar_Click(Launcher& launcher);
void GameEdit_Bar_Click(Launcher& launcher);
void GameDelete_Bar_Click(Launcher& launcher);

void MemViewAll_Bar_Click(Launcher& launcher);
void MemEdit_Bar_Click(Launcher& launcher);

void ScriptsViewAll_Bar_Click(Launcher& launcher);
void ScriptsAdd_Bar_Click(Launcher& launcher);
void ScriptsEdit_Bar_Click(Launcher& launcher);
void ScriptsCopy_Bar_Click(Launcher& launcher);
void ScriptsDelete_Bar_Click(Launcher& launcher);
/// Makes a new script file and opens it in the script editor, where there is one.
void ScriptNew_Bar_Click(Launcher& launcher);

void DemoViewAll_Bar_Click(Launcher& launcher);
void DemoAdd_Bar_Click(Launcher& launcher);
void DemoEdit_Bar_Click(Launcher& launcher);
void DemoDelete_Bar_Click(Launcher& launcher);

void ServerViewAll_Bar_Click(Launcher& launcher);
/// Nothing happens while another launch or capture waits for GameSpy 3D.
void ServerAddCurrentGameSpy_Bar_Click(Launcher& launcher);
void ServerAddManual_Bar_Click(Launcher& launcher);
void ServerEdit_Bar_Click(Launcher& launcher);
void ServerCopy_Bar_Click(Launcher& launcher);
void ServerDelete_Bar_Click(Launcher& launcher);

}  // namespace lv
