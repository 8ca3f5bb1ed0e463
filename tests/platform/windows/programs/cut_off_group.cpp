// Writes a group of five settings and is killed in it: lv_cut_off_group STEPS
// STEPS is how many changes to the registry it lives to make. Ends with 0 if the group took no more.

#include <cstdlib>

#include "platform/windows/registry_settings.h"
#include "platform/windows/system.h"

int main(int count, char** arguments) {
    if (count != 2) {
        return 2;
    }
    int left = std::atoi(arguments[1]);
    lv::RegistrySettings store("Lorvane 3D");
    store.BeforeEachStep = [&left] {
        if (left-- == 0) {
            TerminateProcess(GetCurrentProcess(), 9);
        }
    };
    store.BeginGroup();
    for (const char* key : {"0", "1", "2", "3", "4"}) {
        if (store.Write("Lorvane 3D", "Profile", key, "new")) {
            return 3;
        }
    }
    return store.EndGroup().Number;
}
