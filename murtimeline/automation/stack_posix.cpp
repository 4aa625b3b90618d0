#include <pthread.h>

#include <murtimeline/automation/stack_extent.h>

namespace mur {
namespace {

StackExtent AskForStack() {
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return {};
  void* lowest = nullptr;
  std::size_t size = 0;
  pthread_attr_getstack(&attributes, &lowest, &size);
  pthread_attr_destroy(&attributes);
  return {reinterpret_cast<std::uintptr_t>(lowest), size};
}

}  // namespace

StackExtent CurrentStack() {
  // Asking reads a file of the kernel's for the main thread.
  static thread_local const StackExtent stack = AskForStack();
  return stack;
}

}  // namespace mur
