#pragma once

// Expects that a statement ends the process with exit status 1 after printing exactly "Error: TEXT!".

#include <gtest/gtest.h>

#include <cstdio>
#include <string>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace quadrelle::testing {

// Death tests read standard error, fatal errors go to standard output.
inline void send_output_to_standard_error() {
#ifdef _WIN32
    _dup2(_fileno(stderr), _fileno(stdout));
#else
    dup2(fileno(stderr), fileno(stdout));
#endif
}

// The text as a regular expression that matches nothing else.
inline std::string literally(const std::string& text) {
    std::string pattern;
    for (const char c : text) {
        if (std::string(".[]()*+?{}^$|\\").find(c) != std::string::npos) {
            pattern += '\\';
        }
        pattern += c;
    }
    return pattern;
}

} // namespace quadrelle::testing

#define EXPECT_FATAL(statement, text)                                                                        \
    EXPECT_EXIT(                                                                                             \
        {                                                                                                    \
            quadrelle::testing::send_output_to_standard_error();                                             \
            statement;                                                                                       \
        },                                                                                                   \
        ::testing::ExitedWithCode(1), "^Error: " + quadrelle::testing::literally(text) + "!\n$")
