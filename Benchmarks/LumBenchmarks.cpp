#include "BenchmarkEditor.h"
#include "BranchingGraph.h"
#include "EdGraphSchema_K2.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/LumCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumHelper.h"
#include "Lum/LumProperty.h"
#include "UObject/UnrealType.h"
#include "VexelJson.h"

#include <benchmark/benchmark.h>
#include <memory>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <string>
#include <unordered_map>

namespace
{
bool Start(benchmark::State& State)
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor does not start");
		return false;
	}
	return true;
}

/** A Blueprint of objects that hold another one of them and an array of structs. */
class FMadeClass
{
public:
	FMadeClass()
	{
		static int32 Number = 0;
		const FString Name = FString::Printf(TEXT("BP_Values%d"), ++Number);
		Blueprint = FKismetEditorUtilities::CreateBlueprint(
			AActor::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
		const FEdGraphPinType Object(
			UEdGraphSchema_K2::PC_Object, NAME_None, AActor::StaticClass(), EPinContainerType::None, false, FEdGraphTerminalType());
		FEdGraphPinType Points = Object;
		Points.PinCategory = UEdGraphSchema_K2::PC_Struct;
		Points.PinSubCategoryObject = FindObject<UScriptStruct>(nullptr, TEXT("/Script/CoreUObject.Vector"));
		Points.ContainerType = EPinContainerType::Array;
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Next"), Object);
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Points"), Points);
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		FindProperty(TEXT("Next"))->SetPropertyFlags(CPF_InstancedReference | CPF_ContainsInstancedReference);
	}

	~FMadeClass()
	{
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
		Blueprint->ClearFlags(RF_Standalone);
		CollectGarbage(RF_Standalone);
	}

	FProperty* FindProperty(const TCHAR* Name) const { return Blueprint->GeneratedClass->FindPropertyByName(Name); }
	UObject* Make(UObject* Outer) const { return NewObject<UObject>(Outer, Blueprint->GeneratedClass); }

	UBlueprint* Blueprint;
};

constexpr int32 NumSegments = 64;

void ResolvePath(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	const FMadeClass Class;
	UObject* const Root = Class.Make(GetTransientPackage());
	UObject* Last = Root;
	FString Path;
	for (int32 Segment = 1; Segment < NumSegments; ++Segment)
	{
		UObject* const Next = Class.Make(Last);
		CastField<FObjectProperty>(Class.FindProperty(TEXT("Next")))->SetObjectPropertyValue_InContainer(Last, Next);
		Last = Next;
		Path += TEXT("Next.");
	}
	Path += TEXT("bHidden");
	const TSharedRef<ILumCompound> Compound = MakeShared<FLumUnrealObjectCompound>(*Root);
	for (auto _ : State)
	{
		const TVexelExpected<TSharedRef<ILumProperty>> Property = FLumHelper::CompoundPathResolve(Compound, Path);
		if (Property.HasError())
		{
			State.SkipWithError(TCHAR_TO_UTF8(*Property.GetError().ToString()));
			return;
		}
		benchmark::DoNotOptimize(&Property.GetValue());
	}
}

void ResolvePathPeer(benchmark::State& State)
{
	std::unordered_map<std::string, int> Properties;
	for (int Index = 0; Index < 100; ++Index)
	{
		Properties["Property" + std::to_string(Index)] = Index;
	}
	const std::string Segment = "Property64";
	for (auto _ : State)
	{
		for (int32 Index = 0; Index < NumSegments; ++Index)
		{
			benchmark::DoNotOptimize(Properties.find(Segment)->second);
		}
	}
}

constexpr int32 NumStructs = 250;

void ImportStructs(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	const FMadeClass Class;
	UObject* const Object = Class.Blueprint->GeneratedClass->GetDefaultObject();
	const TSharedRef<FJsonObject> Elements = MakeShared<FJsonObject>();
	for (int32 Index = 0; Index < NumStructs; ++Index)
	{
		const TSharedRef<FJsonObject> Element = MakeShared<FJsonObject>();
		for (const TCHAR* const Field : {TEXT("X"), TEXT("Y"), TEXT("Z")})
		{
			Element->SetStringField(Field, FString::Printf(TEXT("%d.250000"), Index));
		}
		Elements->SetObjectField(FString::FromInt(Index), Element);
	}
	const TSharedRef<FJsonValue> Value = MakeShared<FJsonValueObject>(Elements);
	const FLumContext Context(MakeShared<FVexelBlueprintMapping>());
	for (auto _ : State)
	{
		const TSharedRef<ILumProperty> Points =
			FLumHelper::CompoundPathResolve(MakeShared<FLumUnrealObjectCompound>(*Object), TEXT("Points")).GetValue();
		Points->AsCompoundProperty()->GetCompound().GetValue()->AsCollectionCompound()->Resize(0).GetValue();
		const TVexelExpected<void> Result = Points->JsonImportValue(Context, Value);
		if (Result.HasError())
		{
			State.SkipWithError(TCHAR_TO_UTF8(*Result.GetError().ToString()));
			return;
		}
	}
	State.SetItemsProcessed(State.iterations() * NumStructs);
}

void ImportStructsPeer(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	const FMadeClass Class;
	UObject* const Object = Class.Make(GetTransientPackage());
	const FProperty* const Points = Class.FindProperty(TEXT("Points"));
	FString Text = TEXT("(");
	for (int32 Index = 0; Index < NumStructs; ++Index)
	{
		Text += FString::Printf(TEXT("%s(X=%d.250000,Y=%d.250000,Z=%d.250000)"), Index ? TEXT(",") : TEXT(""), Index, Index, Index);
	}
	Text += TEXT(")");
	for (auto _ : State)
	{
		Points->ClearValue_InContainer(Object);
		benchmark::DoNotOptimize(Points->ImportText_InContainer(*Text, Object, Object, PPF_None));
	}
	State.SetItemsProcessed(State.iterations() * NumStructs);
}

TSharedRef<FJsonObject> Export(const FBranchingGraph& Made)
{
	const FLumContext Context(Made.Mapping);
	return ILumCompound::Create(*Made.Blueprint)->JsonExportObject(Context).GetValue();
}

/** From the Blueprint to JSON text. */
void ExportText(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	const FBranchingGraph Made(static_cast<int32>(State.range(0)));
	for (auto _ : State)
	{
		FString Text;
		FVexelJsonConversions::JsonToString(Export(Made), Text);
		benchmark::DoNotOptimize(Text.Len());
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

using FWriter = rapidjson::Writer<rapidjson::StringBuffer, rapidjson::UTF16<TCHAR>>;

/** Any JSON value, by a visit of its tree. */
void Write(FWriter& Writer, const FJsonValue& Value)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	const TArray<TSharedPtr<FJsonValue>>* Array = nullptr;
	if (Value.TryGetObject(Object))
	{
		Writer.StartObject();
		for (const auto& [Key, Field] : (*Object)->Values)
		{
			Writer.Key(*Key, static_cast<rapidjson::SizeType>(Key.Len()));
			Write(Writer, *Field);
		}
		Writer.EndObject();
	}
	else if (Value.TryGetArray(Array))
	{
		Writer.StartArray();
		for (const TSharedPtr<FJsonValue>& Element : *Array)
		{
			Write(Writer, *Element);
		}
		Writer.EndArray();
	}
	else if (Value.Type == EJson::String)
	{
		const FString Text = Value.AsString();
		Writer.String(*Text, static_cast<rapidjson::SizeType>(Text.Len()));
	}
	else if (Value.Type == EJson::Boolean)
	{
		Writer.Bool(Value.AsBool());
	}
	else
	{
		Writer.Double(Value.AsNumber());
	}
}

/** The same document, which is there already, to text. */
void ExportTextPeer(benchmark::State& State)
{
	if (!Start(State))
	{
		return;
	}
	const FBranchingGraph Made(static_cast<int32>(State.range(0)));
	const FJsonValueObject Document(Export(Made));
	for (auto _ : State)
	{
		rapidjson::StringBuffer Buffer;
		FWriter Writer(Buffer);
		Write(Writer, Document);
		benchmark::DoNotOptimize(Buffer.GetSize());
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

BENCHMARK(ResolvePath)->Name("LumPath/Ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(ResolvePathPeer)->Name("LumPath/Peer:unordered_map")->Unit(benchmark::kMicrosecond);
BENCHMARK(ImportStructs)->Name("LumImport/Ours")->Unit(benchmark::kMicrosecond);
BENCHMARK(ImportStructsPeer)->Name("LumImport/Peer:ImportText")->Unit(benchmark::kMicrosecond);
BENCHMARK(ExportText)->Name("LumExport/Ours")->Arg(10'000)->Unit(benchmark::kMillisecond);
BENCHMARK(ExportTextPeer)->Name("LumExport/Peer:RapidJSON")->Arg(10'000)->Unit(benchmark::kMillisecond);
}
