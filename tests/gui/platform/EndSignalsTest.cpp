#include <gtest/gtest.h>

#include <QTest>
#include <csignal>
#include <vector>

#include "platform/EndRequests.h"
#include "platform/EndSignals.h"

namespace parlate {
namespace {

TEST(EndSignals, AreRequestsThatTheApplicationHearsOfFromItsEventLoop) {
  EndSignals ends;
  ends.Listen();
  EndRequests listener;
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
    std::raise(signal);
    const std::size_t before = listener.taken.size();
    ASSERT_TRUE(listener.Hears(before + 1)) << signal;
    EXPECT_EQ(listener.taken.back(), signal);
  }
  EXPECT_EQ(listener.taken.size(), 3U);
}

TEST(EndSignals, OfTheTimeBeforeAnybodyListensAreNotLost) {
  EndSignals ends;
  std::raise(SIGTERM);
  EndRequests listener;
  ends.Listen();
  ASSERT_TRUE(listener.Hears(1));
  EXPECT_EQ(listener.taken[0], SIGTERM);
}

TEST(EndSignals, ThatAreRefusedComeAgain) {
  EndSignals ends;
  ends.Listen();
  EndRequests listener(3);
  std::raise(SIGTERM);
  ASSERT_TRUE(listener.Hears(1));
  QTest::qWait(120);
  EXPECT_EQ(listener.taken, std::vector<int>{SIGTERM});
}

TEST(EndSignals, ThatThisProgramIsMeantToOutliveStayIgnored) {
  const auto before = std::signal(SIGHUP, SIG_IGN);
  {
    EndSignals ends;
    ends.Listen();
    EndRequests requests;
    std::raise(SIGHUP);
    std::raise(SIGTERM);
    EXPECT_TRUE(requests.Hears(1));
    EXPECT_EQ(requests.taken, std::vector<int>{SIGTERM});
  }
  std::signal(SIGHUP, before);
}

TEST(EndSignals, GoBackToWhatTheyWereAtTheEnd) {
  sigset_t now;
  { const EndSignals ends; }
  ASSERT_EQ(pthread_sigmask(SIG_BLOCK, nullptr, &now), 0);
  EXPECT_EQ(sigismember(&now, SIGTERM), 0);
}

}  // namespace
}  // namespace parlate
