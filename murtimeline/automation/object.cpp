#include <vector>

#include <murtimeline/automation/object.h>

namespace mur {
namespace {
// Points at the list of the outermost destruction while one runs, so that a long chain ends in a loop.
thread_local std::vector<const Object*>* tRetired = nullptr;

// A dying object may be handed out by reference and released again; that must not end it twice.
constexpr std::uint32_t kDying = 0x40000000;
}  // namespace

HostFace::~HostFace() = default;

Object::~Object() {
  delete mFace;
}

void Object::SetFace(HostFace* FaceA) noexcept {
  delete std::exchange(mFace, FaceA);
}

void Object::Retire(const Object* ObjectA) noexcept {
  ObjectA->mReferences = kDying;
  if (tRetired) {
    tRetired->push_back(ObjectA);
    return;
  }
  std::vector<const Object*> retired;
  tRetired = &retired;
  delete ObjectA;
  while (!retired.empty()) {
    const Object* next = retired.back();
    retired.pop_back();
    delete next;
  }
  tRetired = nullptr;
}

}  // namespace mur
