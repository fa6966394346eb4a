# Warnings, sanitizers and the compiler cache: the one place where flags stand.
option(KALYXO_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
# At -O3, GCC 12 takes the copies inside std::string's own operations for overlapping ones (its bug 105651).
add_compile_options($<$<CONFIG:Release>:-Wno-restrict>)
# What Qt deprecated after the oldest release that is supported has no replacement there.
add_compile_definitions(QT_WARN_DEPRECATED_UP_TO=0x060400)
if(KALYXO_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
    # The browser engine is built without run-time type information, which the check of virtual tables needs.
    add_compile_options(-fno-sanitize=vptr)
    # The checks that the sanitizers add make GCC see variants read before they are set.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    add_link_options(-fsanitize=address,undefined)
endif()

# Rooms link all that they build on; what a program does not use is not loaded with it.
add_link_options(-Wl,--as-needed)

# Precompiled headers ask for the first four; with the last, the compiler's own list of headers is trusted, so that a
# file that is not in the cache yet is read once and not twice.
find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER env
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime CCACHE_DEPEND=1 ${CCACHE})
endif()
