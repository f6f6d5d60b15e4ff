#include "Server/ConnectionThreads.h"

#include <utility>

namespace VexelService
{

FConnectionThreads::FConnectionThreads(std::size_t InMaxThreads)
	: MaxThreads(InMaxThreads)
{
}

void FConnectionThreads::enqueue(std::function<void()> Connection)
{
	const std::lock_guard Lock(Mutex);
	Waiting.push_back(std::move(Connection));
	if (IdleThreads < Waiting.size() && Threads.size() < MaxThreads)
	{
		Threads.emplace_back(&FConnectionThreads::Run, this);
	}
	Arrived.notify_one();
}

void FConnectionThreads::shutdown()
{
	{
		const std::lock_guard Lock(Mutex);
		bClosed = true;
		Arrived.notify_all();
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	Threads.clear();
}

void FConnectionThreads::Run()
{
	std::unique_lock Lock(Mutex);
	while (true)
	{
		++IdleThreads;
		Arrived.wait(Lock, [this]
			{ return bClosed || !Waiting.empty(); });
		--IdleThreads;
		if (Waiting.empty())
		{
			return;
		}
		const std::function<void()> Connection = std::move(Waiting.front());
		Waiting.pop_front();
		Lock.unlock();
		Connection();
		Lock.lock();
	}
}

}
