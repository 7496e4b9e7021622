# libpng, for pictures on the clipboard; without it they are bitmaps only. On Windows SDL passes on nothing else.
# Linked into the program where the system has the archive, so that the program needs no library beside it.
if(WIN32)
    return()
endif()
set(library_suffixes ${CMAKE_FIND_LIBRARY_SUFFIXES})
if(NOT APPLE)
    list(PREPEND CMAKE_FIND_LIBRARY_SUFFIXES .a)
endif()
find_package(PNG QUIET)
set(CMAKE_FIND_LIBRARY_SUFFIXES ${library_suffixes})
if(NOT PNG_FOUND)
    message(STATUS "Pictures on the clipboard are bitmaps only: libpng is not installed")
endif()
