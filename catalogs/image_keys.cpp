#include "catalogs/image_keys.h"

namespace lv {

namespace {

struct ImageKeyRow {
    TextView FileName;
    TextView Image;
};

constexpr ImageKeyRow kImageKeys[] = {
    {"quake.exe", "QUAKE"},       {"winquake.exe", "QUAKE"},    {"vquake.exe", "QUAKE"},  {"glquake.exe", "QUAKE"},
    {"qwcl.exe", "QUAKEWORLD"},   {"glqwcl.exe", "QUAKEWORLD"}, {"quake2.exe", "QUAKE2"}, {"h2.exe", "HEXEN2"},
    {"h2mp.exe", "HEXEN2"},       {"glh2.exe", "HEXEN2"},       {"glh2mp.exe", "HEXEN2"}, {"hwcl.exe", "HEXEN2"},
    {"glhwcl.exe", "HEXEN2"},     {"unreal.exe", "UNREAL"},     {"sin.exe", "SIN"},       {"sindemo.exe", "SIN"},
    {"heretic2.exe", "HERETIC2"}, {"hl.exe", "HALFLIFE"},       {"shogo.exe", "SHOGO"},   {"blood2.exe", "BLOOD2"},
};

}  // namespace

Text ImageKeyOf(TextView fileName) {
    for (const ImageKeyRow& row : kImageKeys) {
        if (SameText(row.FileName, fileName)) {
            return Text(row.Image);
        }
    }
    return "QUESTION";
}

}  // namespace lv
