#pragma once

#include <exception>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include <murtimeline/automation/error.h>
#include <murtimeline/automation/export.h>
#include <murtimeline/automation/stack.h>

namespace mur {

/// Keeps one listener connected; disconnects it when destroyed. May outlive the event.
class MUR_API Connection {
 public:
  Connection() = default;
  explicit Connection(std::function<void()> DisconnectA) : mDisconnect(std::move(DisconnectA)) {}
  Connection(Connection&& OtherA) noexcept : mDisconnect(std::exchange(OtherA.mDisconnect, nullptr)) {}
  Connection& operator=(Connection&& OtherA) noexcept {
    if (this != &OtherA) {
      Disconnect();
      mDisconnect = std::exchange(OtherA.mDisconnect, nullptr);
    }
    return *this;
  }
  ~Connection() { Disconnect(); }

  void Disconnect() {
    if (auto disconnect = std::exchange(mDisconnect, nullptr)) disconnect();
  }
  explicit operator bool() const noexcept { return static_cast<bool>(mDisconnect); }

 private:
  std::function<void()> mDisconnect;
};

/// An event that calls its listeners at once, in the order of their connection.
///
/// It fires on a snapshot: a listener may disconnect itself or others (who are then not called any more),
/// connect new ones (who hear the next event) or destroy the event. A listener that throws does not keep the
/// others from hearing; the first error is thrown on when all were called. Out of stack space is thrown on at
/// once, and so ends listeners that raise the event again without end.
template <class... Arguments>
class MUR_API Event {
 public:
  using Handler = std::function<void(Arguments...)>;

  Event() = default;
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  [[nodiscard]] Connection Connect(Handler HandlerA) {
    auto slot = std::make_shared<Slot>(Slot{std::move(HandlerA), true});
    auto listeners =
        mListeners->current ? std::make_shared<List>(*mListeners->current) : std::make_shared<List>();
    listeners->push_back(slot);
    mListeners->current = std::move(listeners);
    return Connection([listeners = std::weak_ptr(mListeners), slot] {
      slot->connected = false;
      if (const auto live = listeners.lock()) live->Drop(slot);
    });
  }

  bool HasListeners() const noexcept { return mListeners->current != nullptr; }

  void Raise(Arguments... ArgumentsA) const {
    RequireStackSpace();
    const auto snapshot = mListeners->current;
    if (!snapshot) return;
    std::exception_ptr firstError;
    for (const auto& slot : *snapshot) {
      if (!slot->connected) continue;
      try {
        slot->handler(ArgumentsA...);
      } catch (const AutomationError& error) {
        if (error.Code() == ErrorCode::OutOfStackSpace) throw;
        if (!firstError) firstError = std::current_exception();
      } catch (...) {
        if (!firstError) firstError = std::current_exception();
      }
    }
    if (firstError) std::rethrow_exception(firstError);
  }

 private:
  struct Slot {
    Handler handler;
    bool connected;
  };
  using List = std::vector<std::shared_ptr<Slot>>;

  struct Listeners {
    std::shared_ptr<const List> current;

    void Drop(const std::shared_ptr<Slot>& SlotA) {
      auto rest = std::make_shared<List>();
      for (const auto& slot : *current)
        if (slot != SlotA) rest->push_back(slot);
      current = rest->empty() ? nullptr : std::move(rest);
    }
  };

  std::shared_ptr<Listeners> mListeners = std::make_shared<Listeners>();
};

}  // namespace mur
