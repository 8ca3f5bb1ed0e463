cmake_minimum_required(VERSION 3.25)
# Fails when a file of the logic includes anything but a standard C++ header or a header that its folder may know.
#   cmake -DROOT=<source folder> -P cmake/check_includes.cmake
# The arrows: a subsystem knows itself, those below it, and the few above it that the work itself calls.

set(STANDARD
    algorithm any array atomic barrier bit bitset cctype cerrno cfloat charconv chrono cinttypes climits cmath
    compare complex concepts condition_variable coroutine csignal cstdarg cstddef cstdint cstdio cstdlib cstring
    ctime cwchar deque exception execution format forward_list functional future
    initializer_list iomanip ios iosfwd istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
    string_view system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility
    valarray variant vector version)

set(MAY_platform platform)
set(MAY_foundation foundation platform)
set(MAY_catalogs catalogs foundation platform)
set(MAY_catalogs/editors catalogs/editors ${MAY_catalogs})
set(MAY_video video foundation platform)
set(MAY_launch launch video catalogs foundation platform)
set(MAY_gamespy gamespy catalogs/editors ${MAY_launch})
set(MAY_launcher launcher launcher/start launcher/window launcher/menu ${MAY_gamespy})
set(MAY_launcher/start ${MAY_launcher})
set(MAY_launcher/window ${MAY_launcher})
set(MAY_launcher/menu ${MAY_launcher})
set(BELOW_FOUNDRY launcher launcher/start launcher/window launcher/menu launch video catalogs catalogs/editors
    foundation platform)
set(MAY_foundry/tables foundry/tables foundation)
set(MAY_foundry/document foundry/document ${MAY_foundry/tables} platform)
set(MAY_foundry/reading foundry/reading foundry/document foundry/tables ${BELOW_FOUNDRY})
set(MAY_foundry/writing foundry/writing foundry/document foundry/tables ${BELOW_FOUNDRY})
set(MAY_foundry/half_life foundry/half_life ${MAY_foundry/writing} foundry/reading)
set(MAY_foundry/fonts foundry/fonts foundry/tables catalogs foundation platform)
set(MAY_foundry/editor foundry/editor foundry/fonts ${MAY_foundry/half_life})
set(MAY_foundry foundry ${MAY_foundry/editor})
set(MAY_wizard wizard ${BELOW_FOUNDRY})

set(faults "")
foreach(folder platform foundation catalogs catalogs/editors video launch gamespy
        launcher launcher/start launcher/window launcher/menu wizard
        foundry foundry/tables foundry/document foundry/reading foundry/writing foundry/half_life foundry/fonts
        foundry/editor)
    file(GLOB sources ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp)
    foreach(source ${sources})
        file(STRINGS ${source} lines REGEX "^[ \t]*#[ \t]*(include|import|ifdef|ifndef|if)")
        foreach(line IN LISTS lines)
            if(line MATCHES "#[ \t]*include[ \t]*<([^>]*)>")
                if(NOT CMAKE_MATCH_1 IN_LIST STANDARD)
                    string(APPEND faults "${source}: <${CMAKE_MATCH_1}> is no header of the C++ standard library\n")
                endif()
            elseif(line MATCHES "#[ \t]*include[ \t]*\"([^\"]+)/([^/\"]*)\"")
                if(NOT CMAKE_MATCH_1 IN_LIST MAY_${folder})
                    string(APPEND faults "${source}: ${folder} may not know ${CMAKE_MATCH_1}\n")
                endif()
            elseif(line MATCHES "#[ \t]*include")
                string(APPEND faults "${source}: ${line}: write \"folder/file.h\", from the root\n")
            else()
                string(APPEND faults "${source}: ${line}: nothing conditional in the logic\n")
            endif()
        endforeach()
    endforeach()
endforeach()

if(faults)
    message(FATAL_ERROR "The logic includes what it may not:\n${faults}")
endif()
