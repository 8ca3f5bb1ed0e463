cmake_minimum_required(VERSION 3.25)
# Fails when a file includes what its folder may not know: of this tree the folders that allowed_includes.cmake names, and beside
# the C++ standard library the logic nothing, a form the toolkit, a platform its system.
#   cmake -DROOT=<source folder> -P cmake/check_includes.cmake

set(STANDARD
    algorithm any array atomic barrier bit bitset cctype cerrno cfloat charconv chrono cinttypes climits cmath
    compare complex concepts condition_variable coroutine csignal cstdarg cstddef cstdint cstdio cstdlib cstring
    ctime cwchar deque exception execution format forward_list functional future
    initializer_list iomanip ios iosfwd istream iterator latch limits list locale map memory
    memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
    semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
    string_view system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility
    valarray variant vector version)

include(${CMAKE_CURRENT_LIST_DIR}/allowed_includes.cmake)

# What stands in <> there, as a pattern, beside the standard library.
set(NO_MORE "^$")
set(THE_TOOLKIT "^wx/")
set(LINUX "^(sys/.*|xcb/.*|clocale|dirent|dlfcn|fcntl|fstream|filesystem|iconv|langinfo|poll|pwd|signal|spawn|sqlite3|\
stdlib|termios|thread|unistd)(\\.h)?$|^nlohmann/json\\.hpp$")
set(WINDOWS "^(clocale|fstream|filesystem|initguid|knownfolders|objbase|oleacc|shellapi|shlobj|shobjidl|stdlib|thread|windows)(\\.h)?$")

set(faults "")
function(check folder beyond)
    file(GLOB sources ${ROOT}/${folder}/*.h ${ROOT}/${folder}/*.cpp)
    foreach(source ${sources})
        file(STRINGS ${source} lines REGEX "^[ \t]*#[ \t]*(include|import|ifdef|ifndef|if)")
        foreach(line IN LISTS lines)
            if(line MATCHES "#[ \t]*include[ \t]*<([^>]*)>")
                set(header ${CMAKE_MATCH_1})
                if(NOT header IN_LIST STANDARD AND NOT header MATCHES "${beyond}")
                    string(APPEND faults "${source}: ${folder} may not know <${header}>\n")
                endif()
            elseif(line MATCHES "#[ \t]*include[ \t]*\"([^\"]+)/([^/\"]*)\"")
                if(NOT CMAKE_MATCH_1 IN_LIST MAY_${folder})
                    string(APPEND faults "${source}: ${folder} may not know ${CMAKE_MATCH_1}\n")
                endif()
            elseif(line MATCHES "#[ \t]*include")
                string(APPEND faults "${source}: ${line}: write \"folder/file.h\", from the root\n")
            else()
                string(APPEND faults "${source}: ${line}: nothing conditional: what differs stands in platform/\n")
            endif()
        endforeach()
    endforeach()
    set(faults "${faults}" PARENT_SCOPE)
endfunction()

foreach(folder ${LV_LOGIC})
    check(${folder} "${NO_MORE}")
endforeach()
foreach(folder ${LV_TOOLKIT})
    check(${folder} "${THE_TOOLKIT}")
endforeach()
foreach(folder ${LV_OF_LINUX})
    check(${folder} "${LINUX}")
endforeach()
foreach(folder ${LV_OF_WINDOWS})
    check(${folder} "${WINDOWS}")
endforeach()
check(app "${THE_TOOLKIT}|${LINUX}|${WINDOWS}")

if(faults)
    message(FATAL_ERROR "Something includes what it may not:\n${faults}")
endif()
