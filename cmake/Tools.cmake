# The compiler's helpers: a cache and a quick linker where the machine has them, warnings, sanitizers.

find_program(CCACHE ccache)
if(CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE})
endif()
find_program(MOLD mold)
if(MOLD)
    add_link_options(-fuse-ld=mold)
endif()

add_compile_options(-Wall -Wextra -Wconversion -Wshadow)
# Optimising, this compiler sees uninitialised texts in every variant that holds none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND (AKARIX_SANITIZE OR CMAKE_BUILD_TYPE STREQUAL "Release"))
    add_compile_options(-Wno-maybe-uninitialized)
endif()
if(AKARIX_WERROR)
    add_compile_options(-Werror)
endif()
if(AKARIX_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()
add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
