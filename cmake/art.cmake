# Composes the picture sheet and the program's icon from their sources in art/, and checks that the committed files are
# what they give.
if(CMAKE_CROSSCOMPILING)
    return()
endif()

file(GLOB art_programs CONFIGURE_DEPENDS art/*.cpp art/*.h)
file(GLOB_RECURSE art_sources CONFIGURE_DEPENDS art/*)
list(REMOVE_ITEM art_sources ${art_programs})
list(FILTER art_programs EXCLUDE REGEX "/compose_(sheet|icon)\\.cpp$")
add_library(art_reading STATIC ${art_programs})
target_include_directories(art_reading PUBLIC src art)
target_link_libraries(art_reading PUBLIC PNG::PNG)
quadrelle_options(art_reading)
foreach(program compose_sheet compose_icon)
    add_executable(${program} art/${program}.cpp)
    target_link_libraries(${program} PRIVATE art_reading)
    quadrelle_options(${program})
endforeach()

set(composed_sheet ${CMAKE_BINARY_DIR}/pool.bmp)
add_custom_command(
    OUTPUT ${composed_sheet}
    COMMAND compose_sheet ${CMAKE_SOURCE_DIR}/art ${composed_sheet}
    DEPENDS compose_sheet ${art_sources}
    COMMENT "Composing the sheet"
    VERBATIM)
add_custom_target(sheet ALL DEPENDS ${composed_sheet})

set(icon_folder ${CMAKE_BINARY_DIR}/icon)
add_custom_command(
    OUTPUT ${icon_folder}/quadrelle.ico
    COMMAND ${CMAKE_COMMAND} -E make_directory ${icon_folder}
    COMMAND compose_icon ${CMAKE_SOURCE_DIR}/art ${icon_folder}
    DEPENDS compose_icon ${art_sources}
    COMMENT "Composing the icon"
    VERBATIM)
add_custom_target(icon ALL DEPENDS ${icon_folder}/quadrelle.ico)

add_test(NAME art.committed_sheet_is_what_its_sources_give
    COMMAND ${CMAKE_COMMAND} -E compare_files ${composed_sheet} ${CMAKE_SOURCE_DIR}/data/pool.bmp)
add_test(NAME art.committed_icon_is_what_its_sources_give
    COMMAND ${CMAKE_COMMAND} -E compare_files ${icon_folder}/quadrelle.ico
        ${CMAKE_SOURCE_DIR}/packaging/windows/quadrelle.ico)
