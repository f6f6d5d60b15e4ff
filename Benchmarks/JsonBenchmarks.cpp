#include "Containers/StringConv.h"
#include "Dom/JsonObject.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonReader.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

#include <benchmark/benchmark.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <string>

namespace
{
constexpr size_t DocumentBytes = 10u << 20;

/** 10 MiB like an exported Blueprint: objects with few fields, names that recur, texts, numbers, links as arrays. */
const std::string& GetUtf8()
{
	static const std::string Text = []
	{
		std::string Result = "{\"version\":3,\"nodes\":[";
		for (int32 Index = 0; Result.size() < DocumentBytes; ++Index)
		{
			const std::string Number = std::to_string(Index);
			Result += Index > 0 ? "," : "";
			Result += "{\"id\":\"Node_" + Number +
				"\",\"class\":\"/Script/BlueprintGraph.K2Node_CallFunction\",\"title\":\"Set Actor Location " + Number +
				"\",\"position\":{\"x\":" + std::to_string(Index * 16) + ",\"y\":-" + Number +
				".5},\"pure\":false,\"comment\":null,\"pins\":[";
			for (int32 Pin = 0; Pin < 4; ++Pin)
			{
				Result += std::string(Pin > 0 ? "," : "") + "{\"name\":\"Pin" + std::to_string(Pin) + "\",\"type\":\"exec\",\"links\":[" +
					Number + "," + std::to_string(Index + Pin) + "],\"default\":0." + std::to_string(Index % 977) + ",\"hidden\":true}";
			}
			Result += "]}";
		}
		return Result + "]}";
	}();
	return Text;
}

const FString& GetText()
{
	static const FString Text(UTF8_TO_TCHAR(GetUtf8().c_str()));
	return Text;
}

void ParseOurs(benchmark::State& State)
{
	const FString& Text = GetText();
	for (auto _ : State)
	{
		TSharedPtr<FJsonObject> Object;
		const bool bRead = FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(Text), Object);
		benchmark::DoNotOptimize(bRead);
	}
	State.SetBytesProcessed(int64(State.iterations()) * int64(GetUtf8().size()));
}

void ParseUtf8Ours(benchmark::State& State)
{
	const FUtf8StringView Text(reinterpret_cast<const UTF8CHAR*>(GetUtf8().data()), int32(GetUtf8().size()));
	for (auto _ : State)
	{
		TSharedPtr<FJsonObject> Object;
		const bool bRead = FJsonSerializer::Deserialize(TJsonReaderFactory<UTF8CHAR>::CreateFromView(Text), Object);
		benchmark::DoNotOptimize(bRead);
	}
	State.SetBytesProcessed(int64(State.iterations()) * int64(GetUtf8().size()));
}

void ParsePeer(benchmark::State& State)
{
	for (auto _ : State)
	{
		rapidjson::Document Document;
		Document.Parse(GetUtf8().data(), GetUtf8().size());
		benchmark::DoNotOptimize(Document.HasParseError());
	}
	State.SetBytesProcessed(int64(State.iterations()) * int64(GetUtf8().size()));
}

void WriteOurs(benchmark::State& State)
{
	TSharedPtr<FJsonObject> Object;
	FJsonSerializer::Deserialize(TJsonReaderFactory<>::Create(GetText()), Object);
	for (auto _ : State)
	{
		FString Text;
		FJsonSerializer::Serialize(Object.ToSharedRef(), TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text));
		benchmark::DoNotOptimize(Text.Len());
	}
	State.SetBytesProcessed(int64(State.iterations()) * int64(GetUtf8().size()));
}

void WritePeer(benchmark::State& State)
{
	rapidjson::Document Document;
	Document.Parse(GetUtf8().data(), GetUtf8().size());
	for (auto _ : State)
	{
		rapidjson::StringBuffer Buffer;
		rapidjson::Writer<rapidjson::StringBuffer> Writer(Buffer);
		Document.Accept(Writer);
		benchmark::DoNotOptimize(Buffer.GetSize());
	}
	State.SetBytesProcessed(int64(State.iterations()) * int64(GetUtf8().size()));
}
}

BENCHMARK(ParseOurs)->Name("JsonParse/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(ParsePeer)->Name("JsonParse/Peer:rapidjson")->Unit(benchmark::kMillisecond);
BENCHMARK(ParseUtf8Ours)->Name("JsonParseUtf8/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(ParsePeer)->Name("JsonParseUtf8/Peer:rapidjson")->Unit(benchmark::kMillisecond);
BENCHMARK(WriteOurs)->Name("JsonWrite/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(WritePeer)->Name("JsonWrite/Peer:rapidjson")->Unit(benchmark::kMillisecond);
