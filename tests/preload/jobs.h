#pragma once

#include <functional>
#include <string>
#include <vector>

// What a job saw: the result of the disturbed call, and what the same call on the
// same object gave afterwards.
struct outcome {
  std::string during;
  std::string after;
};

struct job {
  std::string name;
  std::function<outcome()> run;
  // What may come out instead when memory is exhausted during the call. Then, unless
  // a loss is among those listed, what comes out afterwards is as if nothing had been.
  std::vector<std::string> failures = {};
  // What may come out afterwards although the call succeeded.
  std::vector<std::string> losses = {};
};

// Every function that the library exports.
std::vector<job> all_jobs();
