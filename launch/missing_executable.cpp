#include "launch/missing_executable.h"

namespace lv {

Text MissingExecutableText(TextView path, TextView lastPoint) {
    return Join("The executable game file -->", NewLine, NewLine, TabChar, DoubleQuote, path, DoubleQuote, NewLine,
                NewLine, "could not be found. The following possiblities exist.", NewLine, NewLine,
                "1) The game has been moved.", NewLine, "2) The game has been removed.", NewLine,
                "3) The game is corrupted.", NewLine, lastPoint, NewLine);
}

}  // namespace lv
