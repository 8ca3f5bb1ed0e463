#include "foundation/typed_path.h"

#include "foundation/field_strings.h"

namespace lv {

Text TypedPath(const Run& run, TextView typed) {
    return run.System.Disk.FromTyped(Trim(typed));
}

Text TypedName(const Run& run, TextView typed, TextView directory) {
    const Text path = TypedPath(run, typed);
    if (path == Trim(typed)) {
        return path;
    }
    const Text name = NameBelow(directory, path);
    return name.empty() ? path : name;
}

Text NameBelow(TextView directory, TextView path) {
    const Text above = PathBelow(directory, "");
    const bool below = path.size() > above.size() && SameText(path.substr(0, above.size()), above);
    return below ? Text(path.substr(above.size())) : Text();
}

}  // namespace lv
