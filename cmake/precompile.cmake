# What the compiler reads again and again, read once: a toolkit's or GoogleTest's headers and those of the standard library.
#   lv_precompile(TARGET MAKER <header>...)
# MAKER is the target whose precompiled headers are used: TARGET itself, or one made with the same flags. A source still
# includes what it needs: clang-tidy compiles each without this (scripts/style).
function(lv_precompile target maker)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        target_compile_options(${target} PRIVATE -fpch-preprocess)  # for ccache
    endif()
    if(target STREQUAL maker)
        target_precompile_headers(${target} PRIVATE ${ARGN})
    else()
        target_precompile_headers(${target} REUSE_FROM ${maker})
    endif()
endfunction()
