# Tests that are programs of their own, linked with the rooms that they test.
if(WIN32)
  add_subdirectory(googletest) # there is no package of it for Windows
  set(drive Z:) # as Wine shows the files of this machine
else()
  find_package(GTest REQUIRED)
endif()

file(GLOB support CONFIGURE_DEPENDS support/*.cpp support/*.h)
list(FILTER support EXCLUDE REGEX ${PLOTVUE_OTHER_SYSTEM})
add_library(testsupport STATIC ${support})
target_link_libraries(testsupport PUBLIC app recording GTest::gtest GTest::gmock)
target_include_directories(testsupport PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_definitions(testsupport PUBLIC PLOTVUE_SAMPLES="${drive}${PROJECT_SOURCE_DIR}/samples")

file(GLOB unit CONFIGURE_DEPENDS unit/*.cpp)
list(FILTER unit EXCLUDE REGEX ${PLOTVUE_OTHER_SYSTEM})
add_executable(unittests ${unit})
target_link_libraries(unittests PRIVATE testsupport GTest::gtest_main)
target_compile_definitions(unittests PRIVATE PLOTVUE_VERSION="${PROJECT_VERSION}")
target_precompile_headers(unittests PRIVATE <gtest/gtest.h> support/session.h support/capturebuilder.h)
# A thousand tests of a millisecond each: one process.
add_test(NAME unit COMMAND unittests --gtest_brief=1)
set_tests_properties(unit PROPERTIES LABELS quick)

find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets PrintSupport)
set(CMAKE_AUTOMOC ON)
file(GLOB replay CONFIGURE_DEPENDS replay/*.cpp replay/*.h)
list(REMOVE_ITEM replay ${CMAKE_CURRENT_SOURCE_DIR}/replay/main.cpp)
add_library(replay STATIC ${replay})
target_link_libraries(replay PUBLIC app recording desktop)
target_include_directories(replay PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
add_executable(plotvue-replay replay/main.cpp)
target_link_libraries(plotvue-replay PRIVATE replay)

file(GLOB desktoptests CONFIGURE_DEPENDS desktop/*.cpp desktop/*.h)
list(FILTER desktoptests EXCLUDE REGEX ${PLOTVUE_OTHER_SYSTEM})
add_executable(desktoptests ${desktoptests})
target_link_libraries(desktoptests PRIVATE testsupport desktop GTest::gtest)
plotvue_precompile(desktoptests desktoptests <QtWidgets> <gtest/gtest.h>)
target_compile_definitions(desktoptests PRIVATE PLOTVUE_SCREEN="${CMAKE_CURRENT_SOURCE_DIR}/desktop/screen.json")
if(WIN32)
  # FirstSize needs a screen with a scale of its own, and Copies a clipboard with bare line feeds, which the toolkit does
  # not write on Windows.
  add_test(NAME desktop COMMAND desktoptests --gtest_brief=1 --gtest_filter=-*FirstSize*:*Copies*)
  set_tests_properties(desktop PROPERTIES RESOURCE_LOCK display TIMEOUT 300)
  return()
endif()
set(offscreen "QT_QPA_PLATFORM=offscreen:configfile=${CMAKE_CURRENT_SOURCE_DIR}/desktop/screen.json")
# Four processes that share the tests: starting one takes longer than most tests.
foreach(shard 0 1 2 3)
  add_test(NAME desktop.${shard} COMMAND desktoptests --gtest_brief=1 --gtest_filter=-*FirstSize*)
  set_tests_properties(desktop.${shard} PROPERTIES COST 10 ENVIRONMENT
                       "${offscreen};GTEST_TOTAL_SHARDS=4;GTEST_SHARD_INDEX=${shard}")
endforeach()
foreach(scale 1 1.5 2)
  add_test(NAME desktop.firstsize-${scale} COMMAND desktoptests --gtest_brief=1 --gtest_filter=*FirstSize*)
  set_tests_properties(desktop.firstsize-${scale} PROPERTIES ENVIRONMENT "${offscreen};QT_SCALE_FACTOR=${scale}" COST 5)
endforeach()
