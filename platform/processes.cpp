#include "platform/processes.h"

namespace lv {

Result<StartPlan> Processes::PlanStart(Files&, std::string_view directory, std::string_view name, const BatchCommand&) {
    return StartPlan{{std::string(directory) + "\\" + std::string(name)}, std::string(directory), {}};
}

}  // namespace lv
