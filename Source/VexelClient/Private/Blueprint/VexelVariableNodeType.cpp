#include "Blueprint/VexelVariableNodeType.h"

#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"

#include "BlueprintVariableNodeSpawner.h"
#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_VariableGet.h"
#include "K2Node_VariableSet.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UnrealType.h"

namespace
{
/** The parts of a variable's id. */
struct FVariableId
{
	bool bLocal = false;
	bool bWrites = false;
	/** "BP_Enemy." of a member of another class. */
	FString OwnerPrefix;
	FName Name;
};

constexpr FStringView VariablePrefix(TEXT("var."));

bool TakeWord(FString& Text, const TCHAR* Word)
{
	return Text.RemoveFromStart(Word, ESearchCase::IgnoreCase);
}

TOptional<FVariableId> Parse(const TVexelNodeTypeId& Id)
{
	// Most ids are others, and are passed over without a copy.
	if (!Id.ToString().StartsWith(VariablePrefix))
	{
		return {};
	}
	FVariableId Parsed;
	FString Rest = Id.ToString().RightChop(VariablePrefix.Len());
	Parsed.bLocal = TakeWord(Rest, TEXT("local."));
	Parsed.bWrites = TakeWord(Rest, TEXT("set."));
	if (!Parsed.bWrites && !TakeWord(Rest, TEXT("get.")))
	{
		return {};
	}
	FString Owner;
	FString Name;
	if (Rest.Split(TEXT("."), &Owner, &Name))
	{
		Parsed.OwnerPrefix = Owner + TEXT(".");
		Rest = MoveTemp(Name);
	}
	// A longer text is no engine name, so no variable has it.
	if (Rest.IsEmpty() || Rest.Len() >= NAME_SIZE)
	{
		return {};
	}
	Parsed.Name = FName(*Rest);
	return Parsed;
}

bool CanBeUsed(const FProperty& Property, bool bWrites)
{
	return Property.HasAnyPropertyFlags(CPF_BlueprintVisible) && !(bWrites && Property.HasAnyPropertyFlags(CPF_BlueprintReadOnly));
}

TSubclassOf<UK2Node_Variable> GetNodeClass(const FVariableId& Id)
{
	return Id.bWrites ? UK2Node_VariableSet::StaticClass() : UK2Node_VariableGet::StaticClass();
}

/** The class as its Blueprint's nodes see it, with members that no compile has brought to the generated class yet. */
UClass* GetCurrentClass(const UBlueprint& Blueprint)
{
	return FBlueprintEditorUtils::GetMostUpToDateClass(Blueprint.GeneratedClass);
}

bool IsOwnPrefix(const UClass* Class, const FString& OwnerPrefix)
{
	for (; Class; Class = Class->GetSuperClass())
	{
		if (FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(Class) == OwnerPrefix)
		{
			return true;
		}
	}
	return false;
}

UBlueprintNodeSpawner* MakeMemberSpawner(const FVariableId& Id, const UBlueprint& Blueprint)
{
	UClass* const Class = GetCurrentClass(Blueprint);
	if (!Class || (!Id.OwnerPrefix.IsEmpty() && !IsOwnPrefix(Class, Id.OwnerPrefix)))
	{
		return nullptr;
	}
	const FProperty* const Property = FindFProperty<FProperty>(Class, Id.Name);
	return Property && CanBeUsed(*Property, Id.bWrites)
		? UBlueprintVariableNodeSpawner::CreateFromMemberOrParam(GetNodeClass(Id), Property)
		: nullptr;
}

UBlueprintNodeSpawner* MakeFunctionSpawner(const FVariableId& Id, const UBlueprint& Blueprint, const UEdGraph& Graph)
{
	UEdGraph* const FunctionGraph = FBlueprintEditorUtils::GetTopLevelGraph(&Graph);
	const UClass* const Class = GetCurrentClass(Blueprint);
	const UFunction* const Function = Class ? Class->FindFunctionByName(FunctionGraph->GetFName(), EIncludeSuperFlag::ExcludeSuper) : nullptr;
	FProperty* const Property = Function ? FindFProperty<FProperty>(Function, Id.Name) : nullptr;
	if (const FBPVariableDescription* const Local = FBlueprintEditorUtils::FindLocalVariable(&Blueprint, FunctionGraph, Id.Name))
	{
		return UBlueprintVariableNodeSpawner::CreateFromLocal(GetNodeClass(Id), FunctionGraph, *Local, Property);
	}
	// What a function gives back is set by its return node alone.
	const bool bIsInput = Property && Property->HasAnyPropertyFlags(CPF_Parm) &&
		(!Property->HasAnyPropertyFlags(CPF_OutParm) || Property->HasAnyPropertyFlags(CPF_ReferenceParm));
	return bIsInput ? UBlueprintVariableNodeSpawner::CreateFromMemberOrParam(GetNodeClass(Id), Property, FunctionGraph) : nullptr;
}
}

UBlueprintNodeSpawner* VexelVariableNodeType::MakeSpawner(const TVexelNodeTypeId& Id, const UBlueprint& Blueprint, const UEdGraph* Graph)
{
	const TOptional<FVariableId> Parsed = Parse(Id);
	if (!Parsed)
	{
		return nullptr;
	}
	UBlueprintNodeSpawner* const Member = Parsed->bLocal ? nullptr : MakeMemberSpawner(*Parsed, Blueprint);
	const bool bMayBeLocal = !Member && Graph && Parsed->OwnerPrefix.IsEmpty();
	return bMayBeLocal ? MakeFunctionSpawner(*Parsed, Blueprint, *Graph) : Member;
}

bool VexelVariableNodeType::IsLocal(const TVexelNodeTypeId& Id)
{
	const TOptional<FVariableId> Parsed = Parse(Id);
	return Parsed && Parsed->bLocal;
}
