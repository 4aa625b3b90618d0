#include <gmock/gmock.h>

#include <murtimeline/automation/regional.h>

// Every test runs with American texts, whatever the machine's own region is.
int main(int argc, char** argv) {
  testing::InitGoogleMock(&argc, argv);
  const mur::RegionalScope american("en-US");
  return RUN_ALL_TESTS();
}
