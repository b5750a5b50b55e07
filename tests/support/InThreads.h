#pragma once

#include <thread>
#include <vector>

namespace kt::tests {

/// Runs `work` in several threads at once, each with its number, and waits for all.
template <class F>
void InThreads(int count, F work) {
  std::vector<std::thread> threads;
  for (int i = 0; i < count; ++i) threads.emplace_back(work, i);
  for (std::thread& thread : threads) thread.join();
}

}  // namespace kt::tests
