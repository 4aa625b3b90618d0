#include <cstdio>

#include <murtimeline/win32/platform.h>

#include "bench/com/costs.h"

namespace {

void Print(const char* WhatA, double CoreA, double ComA) {
  std::printf("%-36s %10.1f ns %10.1f ns %8.1f\n", WhatA, CoreA, ComA, ComA / CoreA);
}

}  // namespace

int main() {
  OleInitialize(nullptr);
  try {
    const auto core = mur::bench::CoreCosts(), com = mur::bench::ComCosts();
    std::printf("%-36s %13s %13s %8s\n", "", "C++", "late bound", "ratio");
    Print("get a number", core.get, com.get);
    Print("get a number, name looked up", core.getByName, com.getByName);
    Print("put a number, one listener", core.put, com.put);
    Print("add an object, one listener", core.add, com.add);
    Print("enumerate, per object", core.enumerate, com.enumerate);
  } catch (HRESULT failure) {
    std::printf("failed with %08lx\n", static_cast<unsigned long>(failure));
    return 1;
  }
  OleUninitialize();
  return 0;
}
