// What memcheck has to see: a decision by a value that nobody has set.

#include <cstdio>
#include <cstdlib>

int main() {
  auto* value = static_cast<int*>(std::malloc(sizeof(int)));
  if (value == nullptr) return 1;
  std::puts(*value == 3 ? "three" : "another");
  std::free(value);
  return 0;
}
