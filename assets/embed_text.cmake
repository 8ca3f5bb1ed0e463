# cmake -DIN=<text file> -DSYSTEM=<linux or windows> -DFUNCTION=<name> -DOUT=<file.cpp> -P embed_text.cmake
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/../cmake/system_sections.cmake)
file(READ ${IN} text)
lv_sections_of(${SYSTEM} "${text}" ${IN} text)
string(HEX "${text}" bytes)
string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${bytes}")
file(WRITE ${OUT} "#include \"assets/embedded_texts.h\"\n\nnamespace lv {\n\n"
    "namespace {\n\nconstexpr char kText[] = {${bytes}'\\0'};\n\n}  // namespace\n\n"
    "std::string_view ${FUNCTION}() { return {kText, sizeof(kText) - 1}; }\n\n}  // namespace lv\n")
