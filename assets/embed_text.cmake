# cmake -DIN=<text file> -DFUNCTION=<name> -DOUT=<file.cpp> -P embed_text.cmake
cmake_minimum_required(VERSION 3.25)
file(READ ${IN} bytes HEX)
string(REGEX REPLACE "(..)" "'\\\\x\\1'," bytes "${bytes}")
file(WRITE ${OUT} "#include \"assets/embedded_texts.h\"\n\nnamespace lv {\n\n"
    "namespace {\n\nconstexpr char kText[] = {${bytes}'\\0'};\n\n}  // namespace\n\n"
    "std::string_view ${FUNCTION}() { return {kText, sizeof(kText) - 1}; }\n\n}  // namespace lv\n")
