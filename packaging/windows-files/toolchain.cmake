# Builds Windows programs for x86-64 on Debian: single files that need only libraries of Windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(target x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${target}-gcc-posix) # std::mutex and its like need the variant with POSIX threads
set(CMAKE_CXX_COMPILER ${target}-g++-posix)
set(CMAKE_RC_COMPILER ${target}-windres)

# Build tools come from this machine, libraries and headers from the target.
set(CMAKE_FIND_ROOT_PATH /usr/${target})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
if(PLOTVUE_WINDOWS_QT)
  list(PREPEND CMAKE_FIND_ROOT_PATH ${PLOTVUE_WINDOWS_QT})
endif()

# Unused code is left out, and no time stamp is written, so that the same sources give the same bytes.
foreach(language C CXX)
  set(CMAKE_${language}_FLAGS_INIT "-ffunction-sections -fdata-sections")
endforeach()
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections -Wl,--no-insert-timestamp")
