#include "app/Program.h"

int main(int argc, char* argv[]) {
  return Brontel::App::run(argc, argv);
}
