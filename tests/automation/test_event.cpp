#include <memory>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include <murtimeline/automation/event.h>
#include <murtimeline/automation/guard.h>

namespace mur {
namespace {

class Events : public testing::Test {
 protected:
  Connection Log(char LetterA) {
    return event.Connect([this, LetterA] { log += LetterA; });
  }

  Event<> event;
  std::string log;
};

TEST_F(Events, AreHeardInTheOrderOfConnection) {
  const Connection a = Log('a'), b = Log('b'), c = Log('c');
  event.Raise();
  EXPECT_EQ(log, "abc");
}

TEST_F(Events, AreNotHeardAfterDisconnection) {
  Connection a = Log('a');
  EXPECT_TRUE(event.HasListeners());
  {
    const Connection b = Log('b');
    event.Raise();
  }
  a.Disconnect();
  a.Disconnect();
  EXPECT_FALSE(a);
  EXPECT_FALSE(event.HasListeners());
  event.Raise();
  EXPECT_EQ(log, "ab");
}

TEST_F(Events, FollowAConnectionThatIsMoved) {
  Connection outer;
  {
    Connection inner = Log('a');
    outer = std::move(inner);
  }
  event.Raise();
  outer = Log('b');
  event.Raise();
  Connection& same = outer;
  outer = std::move(same);
  event.Raise();
  EXPECT_EQ(log, "abb");
}

TEST_F(Events, LetAListenerDisconnectItself) {
  Connection once;
  once = event.Connect([&] {
    log += '1';
    once.Disconnect();
  });
  const Connection after = Log('a');
  event.Raise();
  event.Raise();
  EXPECT_EQ(log, "1aa");
}

TEST_F(Events, AreNotHeardByThoseWhomAListenerJustDisconnected) {
  Connection b;
  const Connection a = event.Connect([&] { b.Disconnect(); });
  b = Log('b');
  const Connection c = Log('c');
  event.Raise();
  EXPECT_EQ(log, "c");
}

TEST_F(Events, AreHeardByNewListenersFromTheNextOneOn) {
  Connection late;
  const Connection a = event.Connect([&] {
    if (!late) late = Log('l');
  });
  event.Raise();
  EXPECT_EQ(log, "");
  event.Raise();
  EXPECT_EQ(log, "l");
}

TEST_F(Events, MayBeDestroyedByAListener) {
  auto doomed = std::make_unique<Event<>>();
  const Connection a = doomed->Connect([&] { doomed = nullptr; });
  const Connection b = doomed->Connect([&] { log += 'b'; });
  doomed->Raise();
  EXPECT_EQ(log, "b");
  EXPECT_FALSE(doomed);
}

TEST_F(Events, MayBeOutlivedByTheirConnections) {
  std::optional<Event<>> shortLived(std::in_place);
  Connection connection = shortLived->Connect([] {});
  shortLived.reset();
  connection.Disconnect();
  EXPECT_FALSE(connection);
}

TEST_F(Events, ReachTheOthersWhenOneThrowsAndThenThrowTheFirstError) {
  const Connection a = event.Connect([] { throw 1; });
  const Connection b = event.Connect([] { throw AutomationError(ErrorCode::Overflow); });
  const Connection c = Log('c');
  EXPECT_THROW(event.Raise(), int);
  EXPECT_EQ(log, "c");
}

TEST_F(Events, KeepTheFirstErrorWhenItIsOneOfTheRuntime) {
  const Connection a = event.Connect([] { throw AutomationError(ErrorCode::Overflow); });
  const Connection b = event.Connect([] { throw 1; });
  EXPECT_THROW(event.Raise(), AutomationError);
}

TEST_F(Events, EndAtOnceOutOfStackSpace) {
  const Connection a = event.Connect([] { throw AutomationError(ErrorCode::OutOfStackSpace); });
  const Connection b = Log('b');
  EXPECT_THROW(event.Raise(), AutomationError);
  EXPECT_EQ(log, "");
}

TEST_F(Events, RaisedAgainByTheirListenerWithoutEndRunOutOfStackSpace) {
  int depth = 0;
  const Connection a = event.Connect([&] {
    ++depth;
    event.Raise();
  });
  EXPECT_FALSE(ResumeNext([&] { event.Raise(); }));
  EXPECT_GT(depth, 100);
}

TEST(Event, PassesItsArgumentsOn) {
  Event<int, const std::string&> event;
  std::string log;
  const Connection connection =
      event.Connect([&](int number, const std::string& text) { log += std::to_string(number) + text; });
  event.Raise(7, "x");
  EXPECT_EQ(log, "7x");
}

TEST(Event, LetsAListenerChangeAnArgumentThatIsPassedByReference) {
  Event<int&> event;
  const Connection connection = event.Connect([](int& number) { number = 2; });
  int number = 1;
  event.Raise(number);
  EXPECT_EQ(number, 2);
}

}  // namespace
}  // namespace mur
