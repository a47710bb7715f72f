# One static library per folder. Sources are found by their folder, so that a new file needs no entry here.

# akarix_library(FOLDER [WIDGETS] [USES folder...] [LINK library...])
# The library's name is the folder's last part. USES names the folders of src/ whose headers it includes, no more and no
# fewer: scripts/check-layers holds it to that. WIDGETS: has classes of Qt's object model.
function(akarix_library folder)
    cmake_parse_arguments(ARG "WIDGETS" "" "USES;LINK" ${ARGN})
    get_filename_component(name ${folder} NAME)
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.cpp)
    file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/*.h)
    add_library(akarix_${name} STATIC ${sources} ${headers})
    list(TRANSFORM ARG_USES REPLACE ".*/" "")
    list(TRANSFORM ARG_USES PREPEND "akarix_")
    target_include_directories(akarix_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(akarix_${name} PUBLIC ${ARG_USES} ${ARG_LINK})
    set_target_properties(akarix_${name} PROPERTIES AUTOMOC ${ARG_WIDGETS})
endfunction()

# akarix_tool(NAME [PROGRAM name] LINK library...): the folder's sources as a library, its main.cpp as the program.
function(akarix_tool name)
    cmake_parse_arguments(ARG "" "PROGRAM" "LINK" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.cpp)
    file(GLOB headers CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.h)
    list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
    add_library(akarix_${name} STATIC ${sources} ${headers})
    target_include_directories(akarix_${name} PUBLIC ${PROJECT_SOURCE_DIR}/tools)
    target_link_libraries(akarix_${name} PUBLIC ${ARG_LINK})
    if(ARG_PROGRAM)
        add_executable(${ARG_PROGRAM} main.cpp)
        target_link_libraries(${ARG_PROGRAM} PRIVATE akarix_${name})
    endif()
endfunction()

# akarix_tests(FOLDER LINK library... [WIDGETS]): one program per folder of tests/, run as one test.
function(akarix_tests folder)
    cmake_parse_arguments(ARG "WIDGETS" "" "LINK" ${ARGN})
    get_filename_component(name ${folder} NAME)
    set(dir ${CMAKE_CURRENT_SOURCE_DIR}/${folder})
    file(GLOB sources CONFIGURE_DEPENDS ${dir}/*.cpp)
    add_executable(test_${name} ${sources})
    target_include_directories(test_${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_compile_definitions(test_${name} PRIVATE
        AKARIX_TEST_DATA="${dir}" AKARIX_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    target_link_libraries(test_${name} PRIVATE ${ARG_LINK} GTest::gmock)
    if(ARG_WIDGETS)
        target_link_libraries(test_${name} PRIVATE akarix_test_support)
    else()
        target_link_libraries(test_${name} PRIVATE GTest::gtest_main)
    endif()
    add_test(NAME ${name} COMMAND test_${name})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;ASAN_OPTIONS=detect_leaks=0")
endfunction()
