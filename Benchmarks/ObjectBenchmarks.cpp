#include "HeaderParser/Parser.h"
#include "UObject/Class.h"
#include "UObject/GarbageCollection.h"
#include "UObject/NoExportTypes.h"
#include "UObject/Package.h"
#include "UObject/PropertyConstruction.h"
#include "UObject/ScriptHeaderLoader.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <algorithm>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace
{
constexpr int32 NumObjects = 100000;
constexpr int32 ReferencesPerObject = 2;

/** The same graph for both: each object refers to the next and to another one. */
const std::vector<int32>& GetEdges()
{
	static const std::vector<int32> Edges = []
	{
		std::mt19937 Random(1);
		std::vector<int32> Result;
		for (int32 Index = 0; Index < NumObjects; ++Index)
		{
			Result.push_back((Index + 1) % NumObjects);
			Result.push_back(static_cast<int32>(Random() % NumObjects));
		}
		return Result;
	}();
	return Edges;
}

UPackage* GetPackage()
{
	ProcessNewlyLoadedUObjects();
	UPackage* const Package = CreatePackage(TEXT("/Temp/ObjectBenchmarks"));
	Package->AddToRoot();
	return Package;
}

FPropertyDescription Describe(UECodeGen_Private::EPropertyGenKind Kind, const TCHAR* Name)
{
	FPropertyDescription Description;
	Description.Name = FName(Name);
	Description.Kind = Kind;
	Description.Type = Kind == UECodeGen_Private::EPropertyGenKind::Object ? UObject::StaticClass() : nullptr;
	return Description;
}

/** With numbers around its two references, which the collector must not look at. */
UClass* GetNodeClass()
{
	using UECodeGen_Private::EPropertyGenKind;
	static UClass* const Class = []
	{
		UClass* const Made = NewObject<UClass>(GetPackage(), TEXT("BenchmarkNode_C"), RF_Public | RF_MarkAsRootSet);
		Made->SetSuperStruct(UObject::StaticClass());
		const FPropertyDescription Members[] = {Describe(EPropertyGenKind::Int, TEXT("A")),
			Describe(EPropertyGenKind::Object, TEXT("Next")), Describe(EPropertyGenKind::Double, TEXT("B")),
			Describe(EPropertyGenKind::Object, TEXT("Other")), Describe(EPropertyGenKind::Int, TEXT("C"))};
		for (const FPropertyDescription& Member : Members)
		{
			Made->AddCppProperty(ConstructPropertyFromDescription(Made, Member));
		}
		Made->Bind();
		Made->StaticLink(true);
		Made->GetDefaultObject();
		return Made;
	}();
	return Class;
}

void CollectObjects(benchmark::State& State)
{
	UPackage* const Package = GetPackage();
	UClass* const Class = GetNodeClass();
	const FObjectProperty* const Properties[] = {
		FindFProperty<FObjectProperty>(Class, TEXT("Next")), FindFProperty<FObjectProperty>(Class, TEXT("Other"))};
	std::vector<UObject*> Objects;
	for (int32 Index = 0; Index < NumObjects; ++Index)
	{
		Objects.push_back(NewObject<UObject>(Package, Class));
	}
	for (int32 Index = 0; Index < NumObjects * ReferencesPerObject; ++Index)
	{
		Properties[Index % ReferencesPerObject]->SetObjectPropertyValue_InContainer(
			Objects[Index / ReferencesPerObject], Objects[GetEdges()[Index]]);
	}
	{
		const TStrongObjectPtr<UObject> Root(Objects[0]);
		for (auto _ : State)
		{
			CollectGarbage(RF_NoFlags);
		}
	}
	CollectGarbage(RF_NoFlags);
}

/** The peer: a mark bit and the graph in index arrays, all the same work without objects. */
void MarkIndices(benchmark::State& State)
{
	const std::vector<int32>& Edges = GetEdges();
	std::vector<uint8> Marks(NumObjects);
	std::vector<int32> Pending;
	for (auto _ : State)
	{
		std::fill(Marks.begin(), Marks.end(), uint8(0));
		Marks[0] = 1;
		Pending.push_back(0);
		while (!Pending.empty())
		{
			const int32 Index = Pending.back();
			Pending.pop_back();
			for (int32 Edge = 0; Edge < ReferencesPerObject; ++Edge)
			{
				const int32 Target = Edges[Index * ReferencesPerObject + Edge];
				if (!Marks[Target])
				{
					Marks[Target] = 1;
					Pending.push_back(Target);
				}
			}
		}
		benchmark::DoNotOptimize(std::count(Marks.begin(), Marks.end(), uint8(1)));
	}
}

void MakeObjects(benchmark::State& State)
{
	UPackage* const Package = GetPackage();
	UClass* const Class = GetNodeClass();
	for (auto _ : State)
	{
		for (int32 Index = 0; Index < NumObjects; ++Index)
		{
			benchmark::DoNotOptimize(NewObject<UObject>(Package, Class));
		}
		State.PauseTiming();
		CollectGarbage(RF_NoFlags);
		State.ResumeTiming();
	}
}

struct FPlainNode
{
	virtual ~FPlainNode() = default;
	int32 A = 0;
	FPlainNode* Next = nullptr;
	double B = 0.0;
	FPlainNode* Other = nullptr;
	int32 C = 0;
};

/** The peer: memory and a constructor, without name, index or tables. */
void MakePlain(benchmark::State& State)
{
	for (auto _ : State)
	{
		std::vector<std::unique_ptr<FPlainNode>> Nodes;
		Nodes.reserve(NumObjects);
		for (int32 Index = 0; Index < NumObjects; ++Index)
		{
			Nodes.push_back(std::make_unique<FPlainNode>());
		}
		benchmark::DoNotOptimize(Nodes.data());
		State.PauseTiming();
		Nodes.clear();
		State.ResumeTiming();
	}
}

/** A collection that finds everything unreachable: objects leave their tables, are destroyed and freed. */
void PurgeObjects(benchmark::State& State)
{
	UPackage* const Package = GetPackage();
	UClass* const Class = GetNodeClass();
	CollectGarbage(RF_NoFlags);
	for (auto _ : State)
	{
		State.PauseTiming();
		for (int32 Index = 0; Index < NumObjects; ++Index)
		{
			benchmark::DoNotOptimize(NewObject<UObject>(Package, Class));
		}
		State.ResumeTiming();
		CollectGarbage(RF_NoFlags);
	}
}

/** The peer: counted nodes with a weak pointer each, found by name in a table. */
void FreeShared(benchmark::State& State)
{
	std::unordered_map<std::string, std::shared_ptr<FPlainNode>> Nodes;
	for (auto _ : State)
	{
		State.PauseTiming();
		std::vector<std::weak_ptr<FPlainNode>> Watchers;
		for (int32 Index = 0; Index < NumObjects; ++Index)
		{
			const std::shared_ptr<FPlainNode> Node = std::make_shared<FPlainNode>();
			Watchers.push_back(Node);
			Nodes.emplace("BenchmarkNode_C_" + std::to_string(Index), Node);
		}
		State.ResumeTiming();
		Nodes.clear();
		benchmark::DoNotOptimize(Watchers.data());
	}
}

void ExportStruct(benchmark::State& State)
{
	ProcessNewlyLoadedUObjects();
	const UScriptStruct* const Struct = TBaseStructure<FTransform>::Get();
	const FTransform Value(FQuat(0.5, 0.5, 0.5, 0.5), FVector(1.0, -2.0, 300.0), FVector(1.0, 1.0, 2.0));
	for (auto _ : State)
	{
		FString Text;
		Struct->ExportText(Text, &Value, nullptr, nullptr, PPF_None, nullptr);
		benchmark::DoNotOptimize(Text.Len());
	}
}

/** The peer: the format known beforehand. */
void PrintStruct(benchmark::State& State)
{
	const double Numbers[] = {0.5, 0.5, 0.5, 0.5, 1.0, -2.0, 300.0, 1.0, 1.0, 2.0};
	for (auto _ : State)
	{
		char Text[512];
		const int Length = std::snprintf(Text, sizeof(Text),
			"(Rotation=(X=%f,Y=%f,Z=%f,W=%f),Translation=(X=%f,Y=%f,Z=%f),Scale3D=(X=%f,Y=%f,Z=%f))", Numbers[0], Numbers[1], Numbers[2],
			Numbers[3], Numbers[4], Numbers[5], Numbers[6], Numbers[7], Numbers[8], Numbers[9]);
		benchmark::DoNotOptimize(Length);
		benchmark::DoNotOptimize(Text);
	}
}

/** Thirty headers of a hundred functions, as the declarations of an engine are: documented, with metadata and defaults. */
std::vector<std::string> MakeHeaders(int32 Number)
{
	constexpr int32 NumHeaders = 30;
	constexpr int32 NumFunctions = 100;
	std::vector<std::string> Headers;
	for (int32 Header = 0; Header < NumHeaders; ++Header)
	{
		const std::string Name = "UBenchmarkLibrary" + std::to_string(Header);
		std::string Text = "// Package: /Script/Benchmark" + std::to_string(Number) +
			"\n#pragma once\n\n/** Functions of many kinds. */\nUCLASS(BlueprintType)\nclass " + Name +
			" : public UObject\n{\n\tGENERATED_BODY()\n\npublic:\n";
		for (int32 Function = 0; Function < NumFunctions; ++Function)
		{
			Text += "\t/**\n\t * Works something out of its arguments.\n\t * @param Value\tThe value to look at.\n\t * @return Whether "
					"it was found.\n\t */\n"
					"\tUFUNCTION(BlueprintPure, Category = \"Utilities|Benchmark\", meta = (DisplayName = \"Work Something Out\", "
					"Keywords = \"find look\"))\n"
					"\tstatic bool WorkOut" +
				std::to_string(Function) +
				"(UObject* Target, const FString& Value, FVector Place, float Tolerance = 0.5f, int32& OutIndex);\n\n";
		}
		Headers.push_back(Text + "};\n");
	}
	return Headers;
}

void LoadHeaders(benchmark::State& State)
{
	ProcessNewlyLoadedUObjects();
	static int32 Number = 0;
	for (auto _ : State)
	{
		State.PauseTiming();
		TArray<UE::CoreUObject::FScriptHeaderSource> Sources;
		for (const std::string& Header : MakeHeaders(++Number))
		{
			UE::CoreUObject::FScriptHeaderSource& Source = Sources.AddDefaulted_GetRef();
			Source.Path = TEXT("Benchmark.h");
			Source.Text.Append(reinterpret_cast<const uint8*>(Header.data()), static_cast<int32>(Header.size()));
		}
		State.ResumeTiming();
		const UE::CoreUObject::FScriptHeaderReport Report = UE::CoreUObject::LoadScriptHeaderSources(Sources);
		if (!Report.Errors.IsEmpty())
		{
			State.SkipWithError(TCHAR_TO_UTF8(*Report.Errors[0]));
			return;
		}
	}
}

/** The peer: the same headers read, and nothing made of them. */
void ParseHeaders(benchmark::State& State)
{
	const std::vector<std::string> Headers = MakeHeaders(0);
	for (auto _ : State)
	{
		for (const std::string& Header : Headers)
		{
			const HeaderParser::FParseResult Result = HeaderParser::ParseHeader(Header);
			benchmark::DoNotOptimize(Result.Succeeded());
		}
	}
}
}

BENCHMARK(CollectObjects)->Name("CollectGarbage/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(MarkIndices)->Name("CollectGarbage/Peer:index_marking")->Unit(benchmark::kMillisecond);
BENCHMARK(PurgeObjects)->Name("PurgeGarbage/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(FreeShared)->Name("PurgeGarbage/Peer:shared_ptr_table")->Unit(benchmark::kMillisecond);
BENCHMARK(MakeObjects)->Name("NewObject/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(MakePlain)->Name("NewObject/Peer:new")->Unit(benchmark::kMillisecond);
BENCHMARK(ExportStruct)->Name("StructText/Ours");
BENCHMARK(PrintStruct)->Name("StructText/Peer:snprintf");
BENCHMARK(LoadHeaders)->Name("ScriptHeaders/Ours")->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(ParseHeaders)->Name("ScriptHeaders/Peer:parse")->Unit(benchmark::kMillisecond);
