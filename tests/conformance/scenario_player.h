#pragma once

#include <functional>
#include <string>

#include "tests/conformance/scenario_driver.h"
#include "tests/conformance/scenario_parser.h"

namespace mur::test {

/// Told of each expectation that fails: file, line, and what was expected and met.
using ScenarioFailure = std::function<void(const std::string& /*FileA*/, int /*LineA*/, const std::string&)>;

/// Plays one section. A statement that cannot be carried out ends it.
void PlaySection(const Section& SectionA, ScenarioDriver& DriverA, const ScenarioFailure& FailureA);

}  // namespace mur::test
