# Composes the picture sheet from its sources in art/ and checks that data/pool.bmp is what they give.
file(GLOB art_programs CONFIGURE_DEPENDS art/*.cpp art/*.h)
if(NOT art_programs OR CMAKE_CROSSCOMPILING)
    return()
endif()

file(GLOB_RECURSE art_sources CONFIGURE_DEPENDS art/*)
list(REMOVE_ITEM art_sources ${art_programs})
add_executable(compose_sheet ${art_programs})
target_include_directories(compose_sheet PRIVATE src art)
target_link_libraries(compose_sheet PRIVATE PNG::PNG)
quadrelle_options(compose_sheet)

set(composed_sheet ${CMAKE_BINARY_DIR}/pool.bmp)
add_custom_command(
    OUTPUT ${composed_sheet}
    COMMAND compose_sheet ${CMAKE_SOURCE_DIR}/art ${composed_sheet}
    DEPENDS compose_sheet ${art_sources}
    COMMENT "Composing the sheet"
    VERBATIM)
add_custom_target(sheet ALL DEPENDS ${composed_sheet})

add_test(NAME art.committed_sheet_is_what_its_sources_give
    COMMAND ${CMAKE_COMMAND} -E compare_files ${composed_sheet} ${CMAKE_SOURCE_DIR}/data/pool.bmp)
