# Any bytes for the readers of files, with libFuzzer, which is clang's.
add_executable(quadrelle_fuzz fuzz/readers.cpp)
target_link_libraries(quadrelle_fuzz PRIVATE quadrelle_core)
target_link_options(quadrelle_fuzz PRIVATE -fsanitize=fuzzer)
quadrelle_options(quadrelle_fuzz)
