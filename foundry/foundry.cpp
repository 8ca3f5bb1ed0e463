#include "foundry/foundry.h"

#include "foundry/half_life/convert_registry.h"
#include "foundry/look/launch_looks.h"

namespace lv {

void ConnectFoundry(Launcher& launcher) {
    launcher.RegistryToScript = [&launcher](TextView path) { ConvertRegistryToScript(launcher.run, path); };
    launcher.ShowFileOrder = [&launcher] { ShowFileOrderOfLaunch(launcher); };
    launcher.ShowScriptCheck = [&launcher] { ShowCheckOfLaunch(launcher); };
    launcher.ScriptToRegistry = [&launcher](TextView path) { return ConvertScriptToRegistry(launcher.run, path); };
}

void ConnectEditor(SetupFoundry& foundry) {
    foundry.launcher.OpenSetupFoundry = [&foundry] { SetupFoundry_Bar_Click(foundry); };
    foundry.launcher.KeepUnsavedEdits = [&foundry] { KeepUnsavedEdits(foundry); };
}

}  // namespace lv
