#include "Async/TaskGraphInterfaces.h"
#include "VexelHttp.h"

#include <benchmark/benchmark.h>
#include <curl/curl.h>
#include <cstdlib>
#include <httplib.h>
#include <semaphore>
#include <string>
#include <thread>

namespace
{
constexpr int32 NumRequests = 10'000;
constexpr int32 NumAtOnce = 16;
constexpr size_t DownloadBytes = size_t(256) * 1024 * 1024;

/** One server for all of this program, with "/small" and "/large", on connections that stay open. It packs neither. */
class FServer
{
public:
	FServer()
		: Piece(1 << 20, 'x')
	{
		// Statics that are made in here are destroyed after this one.
		FVexelHttpManager::Shutdown();
		FTaskGraphInterface::Startup();
		Server.set_tcp_nodelay(true);
		Server.set_keep_alive_max_count(size_t(1) << 40);
		Server.new_task_queue = []
		{ return new httplib::ThreadPool(2 * NumAtOnce); };
		Server.Get("/small", [](const httplib::Request&, httplib::Response& Response)
			{ Response.set_content("{\"answer\":42}", "application/octet-stream"); });
		Server.Get("/large", [this](const httplib::Request&, httplib::Response& Response)
			{ Response.set_content_provider(DownloadBytes, "application/octet-stream", [this](size_t, size_t NumLeft, httplib::DataSink& Sink)
				  { return Sink.write(Piece.data(), std::min(Piece.size(), NumLeft)); }); });
		Port = Server.bind_to_any_port("127.0.0.1");
		Thread = std::thread([this]
			{ Server.listen_after_bind(); });
		Client = MakeShared<FVexelHttp>(FVexelHttpClientConfig(FString::Printf(TEXT("http://127.0.0.1:%d"), Port)));
	}
	~FServer()
	{
		FVexelHttpManager::Shutdown();
		Server.stop();
		Thread.join();
		FTaskGraphInterface::Shutdown();
	}

	std::string GetUrl(const char* Path) const { return "http://127.0.0.1:" + std::to_string(Port) + Path; }

	TSharedPtr<FVexelHttp> Client;

private:
	std::string Piece;
	httplib::Server Server;
	std::thread Thread;
	int32 Port = 0;
};

FServer& GetServer()
{
	static FServer Server;
	return Server;
}

size_t DropBody(char*, size_t Size, size_t Count, void*)
{
	return Size * Count;
}

/** Sends so many small requests, at most so many at once; false when one fails. */
bool SendSmallRequests(int32 Num, std::ptrdiff_t NumInFlight)
{
	std::counting_semaphore<> Free(NumInFlight);
	std::atomic<bool> bAllGood = true;
	for (int32 Index = 0; Index < Num; ++Index)
	{
		Free.acquire();
		const auto Sent = GetServer().Client->Request(EVexelHttpVerb::Get, TEXT("/small")).SendAndAwait();
		Sent.OnComplete([&](const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Answer)
			{
				bAllGood = bAllGood && Answer.HasValue() && Answer.GetValue()->GetContent().Num() == 13;
				Free.release(); });
	}
	for (std::ptrdiff_t Index = 0; Index < NumInFlight; ++Index)
	{
		Free.acquire();
	}
	return bAllGood;
}

void SmallRequestsOneByOne(benchmark::State& State)
{
	for (auto _ : State)
	{
		if (!SendSmallRequests(NumRequests, 1))
		{
			State.SkipWithError("a request failed");
		}
	}
}

void SmallRequestsAtOnce(benchmark::State& State)
{
	for (auto _ : State)
	{
		if (!SendSmallRequests(NumRequests, NumAtOnce))
		{
			State.SkipWithError("a request failed");
		}
	}
}

/** One handle for all requests, which keeps its connection. */
void SmallRequestsWithAnEasyHandle(benchmark::State& State)
{
	const std::string Url = GetServer().GetUrl("/small");
	CURL* const Handle = curl_easy_init();
	curl_easy_setopt(Handle, CURLOPT_URL, Url.c_str());
	curl_easy_setopt(Handle, CURLOPT_NOPROXY, "*");
	curl_easy_setopt(Handle, CURLOPT_WRITEFUNCTION, &DropBody);
	for (auto _ : State)
	{
		for (int32 Index = 0; Index < NumRequests; ++Index)
		{
			if (curl_easy_perform(Handle) != CURLE_OK)
			{
				State.SkipWithError("a request failed");
			}
		}
	}
	curl_easy_cleanup(Handle);
}

void Download(benchmark::State& State)
{
	for (auto _ : State)
	{
		std::binary_semaphore Done(0);
		std::atomic<int64> NumSeen = 0;
		int64 NumBytes = 0;
		GetServer().Client->Request(EVexelHttpVerb::Get, TEXT("/large")).WithProgress([&](TConstArrayView<uint8> Body)
																			{ NumSeen = Body.Num(); })
			.SendAndAwait()
			.OnComplete([&](const TVexelExpected<TSharedRef<FVexelHttpResponse>>& Answer)
				{
					NumBytes = Answer.HasValue() ? Answer.GetValue()->GetContent().Num() : 0;
					Done.release(); });
		Done.acquire();
		if (NumBytes != int64(DownloadBytes) || NumSeen != NumBytes)
		{
			State.SkipWithError("the download failed");
		}
	}
	State.SetBytesProcessed(int64_t(State.iterations()) * int64_t(DownloadBytes));
}

/** The program itself, which writes to a file that keeps nothing. */
void DownloadWithTheProgram(benchmark::State& State)
{
	const std::string Command = "curl --silent --fail --noproxy '*' --output /dev/null " + GetServer().GetUrl("/large");
	for (auto _ : State)
	{
		if (std::system(Command.c_str()) != 0)
		{
			State.SkipWithError("curl failed or is not installed");
		}
	}
	State.SetBytesProcessed(int64_t(State.iterations()) * int64_t(DownloadBytes));
}

/** One run is long enough to be measured; the ratio takes the shortest. */
void RunOnceThreeTimes(benchmark::internal::Benchmark* Each)
{
	Each->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(3);
}

BENCHMARK(SmallRequestsOneByOne)->Name("TenThousandRequests/Ours")->Apply(RunOnceThreeTimes);
BENCHMARK(SmallRequestsWithAnEasyHandle)->Name("TenThousandRequests/Peer:curl_easy")->Apply(RunOnceThreeTimes);
BENCHMARK(SmallRequestsAtOnce)->Name("TenThousandRequestsSixteenAtOnce/Ours")->Apply(RunOnceThreeTimes);
BENCHMARK(SmallRequestsWithAnEasyHandle)->Name("TenThousandRequestsSixteenAtOnce/Peer:curl_easy")->Apply(RunOnceThreeTimes);
BENCHMARK(Download)->Name("Download256MiB/Ours")->Apply(RunOnceThreeTimes);
BENCHMARK(DownloadWithTheProgram)->Name("Download256MiB/Peer:curl")->Apply(RunOnceThreeTimes);
}
