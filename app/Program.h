#pragma once

namespace Brontel::App {

/// Runs the program with main's arguments and returns its exit code.
int run(int argc, char* argv[]);

}  // namespace Brontel::App
