#pragma once

namespace mur::bench {

/// Medians in nanoseconds per call or object.
struct Costs {
  double get;        // a number of an object
  double getByName;  // the same, its name looked up each time
  double put;        // a number, with one listener on the time line
  double add;        // an object to a time line that keeps growing
  double enumerate;  // an object met by for-each
};

Costs CoreCosts();
/// Calls are late bound. Throws an HRESULT where the server fails.
Costs ComCosts();

}  // namespace mur::bench
