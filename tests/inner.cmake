# Tests that are programs of their own, linked with the rooms they look at.
find_package(GTest REQUIRED)
include(GoogleTest)

file(GLOB support CONFIGURE_DEPENDS support/*.cpp support/*.h)
add_library(testsupport STATIC ${support})
target_link_libraries(testsupport PUBLIC app recording GTest::gtest GTest::gmock)
target_include_directories(testsupport PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_compile_definitions(testsupport PUBLIC PLOTVUE_SAMPLES="${PROJECT_SOURCE_DIR}/samples")

file(GLOB unit CONFIGURE_DEPENDS unit/*.cpp)
add_executable(unittests ${unit})
target_link_libraries(unittests PRIVATE testsupport GTest::gtest_main)
target_precompile_headers(unittests PRIVATE <gtest/gtest.h> support/session.h support/capturebuilder.h)
# A thousand tests of a millisecond each: one process.
add_test(NAME unit COMMAND unittests --gtest_brief=1)

find_package(Qt6 6.4 REQUIRED COMPONENTS Widgets PrintSupport)
set(CMAKE_AUTOMOC ON)
file(GLOB replay CONFIGURE_DEPENDS replay/*.cpp replay/*.h)
list(REMOVE_ITEM replay ${CMAKE_CURRENT_SOURCE_DIR}/replay/main.cpp)
add_library(replay STATIC ${replay})
target_link_libraries(replay PUBLIC app recording desktop)
target_include_directories(replay PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
add_executable(plotvue-replay replay/main.cpp)
target_link_libraries(plotvue-replay PRIVATE replay)

file(GLOB desktop CONFIGURE_DEPENDS desktop/*.cpp desktop/*.h)
add_executable(desktoptests ${desktop})
target_link_libraries(desktoptests PRIVATE testsupport desktop GTest::gtest)
gtest_discover_tests(desktoptests TEST_PREFIX desktop. PROPERTIES ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
