#pragma once

#include <httplib.h>

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace VexelService
{

/**
 * Gives every connection a thread of its own, since a chat holds its connection for as long as its turn lasts and the result
 * it waits for comes by another one. Threads are kept and used again; beyond the limit connections wait.
 */
class FConnectionThreads final : public httplib::TaskQueue
{
public:
	explicit FConnectionThreads(std::size_t InMaxThreads);

	void enqueue(std::function<void()> Connection) override;
	void shutdown() override;

private:
	void Run();

	const std::size_t MaxThreads;
	std::mutex Mutex;
	std::condition_variable Arrived;
	std::deque<std::function<void()>> Waiting;
	std::vector<std::thread> Threads;
	std::size_t IdleThreads = 0;
	bool bClosed = false;
};

}
