#include "BenchmarkEditor.h"
#include "EdGraphSchema_K2.h"
#include "Editor.h"
#include "Editor/Transactor.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Lum/LumCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumStructureEdit.h"
#include "ScopedTransaction.h"
#include "Tools/Blueprint/VexelObjectEditRequest.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#include <benchmark/benchmark.h>
#include <memory>

namespace
{
/** A batch of edits of the members of a Blueprint: of each five, two add a variable, and one each renames, recategorises and removes one. */
class FMemberEdits
{
public:
	explicit FMemberEdits(int32 InNumEdits)
		: NumEdits(InNumEdits)
	{
		static int32 Number = 0;
		const FString Name = FString::Printf(TEXT("BP_LumEdit%d"), ++Number);
		Blueprint = FKismetEditorUtilities::CreateBlueprint(AActor::StaticClass(), CreatePackage(*(TEXT("/Game/") + Name)), FName(*Name), BPTYPE_Normal);
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
	}

	~FMemberEdits()
	{
		GEditor->ResetTransaction(FText::FromString(TEXT("Benchmark")));
		Blueprint->ClearFlags(RF_Standalone);
		CollectGarbage(RF_Standalone);
	}

	void MakeByRequests()
	{
		const FLumEditBatch Batch(*Blueprint);
		const TSharedRef<ILumCompound> Compound = ILumCompound::Create(*Blueprint);
		for (int32 Index = 0; Index < NumEdits; Index += 5)
		{
			Execute(Compound, EVexelEditOperation::AddVariable, MakeName(TEXT("A"), Index), {{TEXT("type_id"), TEXT("int")}});
			Execute(Compound, EVexelEditOperation::AddVariable, MakeName(TEXT("B"), Index), {{TEXT("type_id"), TEXT("int")}});
			Execute(Compound, EVexelEditOperation::EditVariable, MakeName(TEXT("A"), Index), {{TEXT("prop_id"), MakeName(TEXT("C"), Index)}});
			Execute(Compound, EVexelEditOperation::EditVariable, MakeName(TEXT("C"), Index), {{TEXT("category"), TEXT("Many")}});
			Execute(Compound, EVexelEditOperation::RemoveVariable, MakeName(TEXT("B"), Index), {});
		}
	}

	/** As one does who knows the engine: an entry of undo for each edit, and the functions of the editor's own panels. */
	void MakeByTheEngine()
	{
		FEdGraphPinType Type;
		Type.PinCategory = UEdGraphSchema_K2::PC_Int;
		for (int32 Index = 0; Index < NumEdits; Index += 5)
		{
			const FName A(*MakeName(TEXT("A"), Index));
			const FName B(*MakeName(TEXT("B"), Index));
			const FName C(*MakeName(TEXT("C"), Index));
			Transact([&]
				{ FBlueprintEditorUtils::AddMemberVariable(Blueprint, A, Type); });
			Transact([&]
				{ FBlueprintEditorUtils::AddMemberVariable(Blueprint, B, Type); });
			Transact([&]
				{ FBlueprintEditorUtils::RenameMemberVariable(Blueprint, A, C); });
			Transact([&]
				{ FBlueprintEditorUtils::SetBlueprintVariableCategory(Blueprint, C, nullptr, INVTEXT("Many")); });
			Transact([&]
				{ FBlueprintEditorUtils::RemoveMemberVariable(Blueprint, B); });
		}
	}

	bool IsMade() const { return Blueprint->NewVariables.Num() == NumEdits / 5; }

private:
	static FString MakeName(const TCHAR* Letter, int32 Index) { return FString::Printf(TEXT("%s_%d_x"), Letter, Index); }

	template <typename EditType>
	static void Transact(EditType Edit)
	{
		const FScopedTransaction Transaction(INVTEXT("Edit"));
		Edit();
	}

	static void Execute(const TSharedRef<ILumCompound>& Compound, EVexelEditOperation Type, const FString& Name,
		std::initializer_list<std::pair<const TCHAR*, FString>> Fields)
	{
		const TSharedRef<FJsonObject> Value = MakeShared<FJsonObject>();
		for (const auto& [Key, Text] : Fields)
		{
			Value->SetStringField(Key, Text);
		}
		const FEditRequestOperationOnVar Operation{Type, TEXT("member"), Name, MakeShared<FJsonValueObject>(Value)};
		const TVexelExpected<void> Result = Operation.Execute(Compound);
		checkf(Result.HasValue(), TEXT("%s"), *Result.GetError().ToChainString());
	}

	int32 NumEdits;
	UBlueprint* Blueprint = nullptr;
};

void Edit(benchmark::State& State, void (FMemberEdits::*Make)())
{
	if (!FBenchmarkEditor::Get().IsRunning())
	{
		State.SkipWithError("the editor does not start");
		return;
	}
	for (auto _ : State)
	{
		State.PauseTiming();
		auto Edits = std::make_unique<FMemberEdits>(static_cast<int32>(State.range(0)));
		State.ResumeTiming();
		((*Edits).*Make)();
		State.PauseTiming();
		State.counters["undo_bytes"] = static_cast<double>(GEditor->Trans->GetUndoSize());
		if (!Edits->IsMade())
		{
			State.SkipWithError("the edits were not made");
		}
		Edits.reset();
		State.ResumeTiming();
	}
	State.SetItemsProcessed(State.iterations() * State.range(0));
}

void ByRequests(benchmark::State& State) { Edit(State, &FMemberEdits::MakeByRequests); }
void ByTheEngine(benchmark::State& State) { Edit(State, &FMemberEdits::MakeByTheEngine); }

BENCHMARK(ByRequests)->Name("BatchOfEdits/Ours")->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK(ByTheEngine)->Name("BatchOfEdits/Peer:engine functions")->Arg(500)->Unit(benchmark::kMillisecond);
BENCHMARK(ByRequests)->Name("BatchOfEditsGrowth")->Arg(1'000)->Arg(2'000)->Unit(benchmark::kMillisecond)->Iterations(1);
}
