#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace app {

// Runs produce(i) for every i in [0, count) on up to `workers` threads and hands the results to
// consume in index order, each as soon as it and all before it are done. Workers stay at most a
// few items ahead of consume, so a long list never piles up in memory. produce must not throw.
template <typename Result>
void ProduceInOrder(std::size_t count, unsigned workers, const std::function<Result(std::size_t)>& produce,
                    const std::function<void(Result&)>& consume) {
  if (workers <= 1 || count <= 1) {
    for (std::size_t i = 0; i < count; ++i) {
      Result result = produce(i);
      consume(result);
    }
    return;
  }
  std::vector<std::optional<Result>> done(count);
  std::mutex mutex;
  std::condition_variable changed;
  std::size_t next = 0;
  std::size_t consumed = 0;
  const std::size_t ahead = 4 * std::size_t{workers};
  const auto work = [&] {
    for (;;) {
      std::unique_lock lock(mutex);
      changed.wait(lock, [&] { return next == count || next < consumed + ahead; });
      if (next == count) return;
      const std::size_t i = next++;
      lock.unlock();
      Result result = produce(i);
      lock.lock();
      done[i] = std::move(result);
      changed.notify_all();
    }
  };
  std::vector<std::jthread> threads;
  for (unsigned w = 0; w < workers; ++w) threads.emplace_back(work);
  for (std::size_t i = 0; i < count; ++i) {
    std::unique_lock lock(mutex);
    changed.wait(lock, [&] { return done[i].has_value(); });
    Result result = std::move(*done[i]);
    done[i].reset();
    ++consumed;
    changed.notify_all();
    lock.unlock();
    consume(result);
  }
}

}  // namespace app
