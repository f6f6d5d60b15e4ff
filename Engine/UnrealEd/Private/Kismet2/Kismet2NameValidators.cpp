#include "Kismet2/Kismet2NameValidators.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_Composite.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "K2Node_Timeline.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "KismetNameValidators"

EValidatorResult INameValidatorInterface::FindValidString(FString& InOutName)
{
	const FString Base = InOutName;
	const EValidatorResult First = IsValid(InOutName);
	EValidatorResult Result = First;
	const bool bCanBeHelped = First == EValidatorResult::AlreadyInUse || First == EValidatorResult::LocallyInUse;
	for (int32 Number = 1; bCanBeHelped && Result != EValidatorResult::Ok; ++Number)
	{
		const FString Suffix = FString::FromInt(Number);
		InOutName = Base.Left(FKismetNameValidator::GetMaximumNameLength() - Suffix.Len()) + Suffix;
		Result = IsValid(InOutName);
	}
	return First;
}

FText INameValidatorInterface::GetErrorText(const FString& Name, EValidatorResult ErrorCode)
{
	switch (ErrorCode)
	{
		case EValidatorResult::EmptyName:
			return LOCTEXT("EmptyName_Error", "Name cannot be empty.");
		case EValidatorResult::AlreadyInUse:
			return LOCTEXT("AlreadyInUse_Error", "Name is already in use.");
		case EValidatorResult::TooLong:
			return FText::Format(LOCTEXT("NameTooLong_Error", "Names must have fewer than {0} characters!"),
				FText::AsNumber(FKismetNameValidator::GetMaximumNameLength()));
		case EValidatorResult::LocallyInUse:
			return LOCTEXT("LocallyInUse_Error", "Conflicts with another object in the same scope!");
		case EValidatorResult::ContainsInvalidCharacters:
			return FText::Format(LOCTEXT("ContainsInvalidCharacters_Error", "Name {0} cannot contain the following characters: {1}"),
				FText::FromString(Name), FText::FromString(UE_BLUEPRINT_INVALID_NAME_CHARACTERS));
		case EValidatorResult::ExistingName:
		case EValidatorResult::Ok:
			break;
	}
	return FText::GetEmpty();
}

bool INameValidatorInterface::BlueprintObjectNameIsValid(const FName& Name, const UBlueprint* Blueprint)
{
	return !StaticFindObjectFast(nullptr, const_cast<UBlueprint*>(Blueprint), Name);
}

namespace
{
void AddGraphAndEventNames(const UBlueprint& Blueprint, TSet<FName>& Names)
{
	TArray<UEdGraph*> Graphs;
	Blueprint.GetAllGraphs(Graphs);
	for (const UEdGraph* const Graph : Graphs)
	{
		Names.Add(Graph->GetFName());
		TArray<UK2Node_Event*> Events;
		Graph->GetNodesOfClass(Events);
		for (const UK2Node_Event* const Event : Events)
		{
			Names.Add(Event->GetFunctionName());
		}
	}
}

void AddFunctionNames(const UClass* Class, TSet<FName>& Names)
{
	for (TFieldIterator<UFunction> It(Class); Class && It; ++It)
	{
		Names.Add(It->GetFName());
	}
}
}

FKismetNameValidator::FKismetNameValidator(const UBlueprint* Blueprint, FName InExistingName, UStruct* InScope)
	: BlueprintObject(Blueprint)
	, ExistingName(InExistingName)
{
	FBlueprintEditorUtils::GetClassVariableList(Blueprint, Names, true);
	AddGraphAndEventNames(*Blueprint, Names);
	AddFunctionNames(Blueprint->SkeletonGeneratedClass ? Blueprint->SkeletonGeneratedClass.Get() : Blueprint->ParentClass.Get(), Names);
	Names.Remove(NAME_None);
	for (TFieldIterator<FProperty> It(InScope); InScope && !InScope->IsA<UClass>() && It; ++It)
	{
		LocalNames.Add(It->GetFName());
	}
	// The function may have been declared after the skeleton class was built.
	const UEdGraph* const ScopeGraph = InScope ? FBlueprintEditorUtils::FindScopeGraph(Blueprint, InScope) : nullptr;
	const UK2Node_FunctionEntry* const Entry =
		ScopeGraph ? Cast<UK2Node_FunctionEntry>(FBlueprintEditorUtils::GetEntryNode(ScopeGraph)) : nullptr;
	if (Entry)
	{
		for (const FBPVariableDescription& Local : Entry->LocalVariables)
		{
			LocalNames.Add(Local.VarName);
		}
	}
}

EValidatorResult FKismetNameValidator::IsValid(const FString& Name, bool bOriginal)
{
	if (Name.IsEmpty())
	{
		return EValidatorResult::EmptyName;
	}
	if (Name.Len() >= GetMaximumNameLength())
	{
		return EValidatorResult::TooLong;
	}
	FText Reason;
	if (!FName(*Name).IsValidXName(Reason, UE_BLUEPRINT_INVALID_NAME_CHARACTERS))
	{
		return EValidatorResult::ContainsInvalidCharacters;
	}
	return IsValid(FName(*Name), bOriginal);
}

EValidatorResult FKismetNameValidator::IsValid(const FName& Name, bool bOriginal)
{
	if (Name.IsNone())
	{
		return EValidatorResult::EmptyName;
	}
	if (Name == ExistingName)
	{
		return bOriginal ? EValidatorResult::Ok : EValidatorResult::ExistingName;
	}
	if (LocalNames.Contains(Name))
	{
		return EValidatorResult::LocallyInUse;
	}
	const bool bIsTaken = Names.Contains(Name) || !BlueprintObjectNameIsValid(Name, BlueprintObject);
	return bIsTaken ? EValidatorResult::AlreadyInUse : EValidatorResult::Ok;
}

EValidatorResult FStringSetNameValidator::IsValid(const FString& Name, bool bOriginal)
{
	if (Name.IsEmpty())
	{
		return EValidatorResult::EmptyName;
	}
	if (Name == ExistingName)
	{
		return bOriginal ? EValidatorResult::Ok : EValidatorResult::ExistingName;
	}
	return Names.Contains(Name) ? EValidatorResult::AlreadyInUse : EValidatorResult::Ok;
}

TSharedPtr<INameValidatorInterface> FNameValidatorFactory::MakeValidator(UEdGraphNode* Node)
{
	const UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForNode(Node);
	FName Existing;
	if (const UK2Node_CustomEvent* const Event = Cast<UK2Node_CustomEvent>(Node))
	{
		Existing = Event->CustomFunctionName;
	}
	else if (const UK2Node_Timeline* const Timeline = Cast<UK2Node_Timeline>(Node))
	{
		Existing = Timeline->TimelineName;
	}
	else if (const UK2Node_Composite* const Composite = Cast<UK2Node_Composite>(Node))
	{
		Existing = Composite->BoundGraph ? Composite->BoundGraph->GetFName() : FName();
	}
	return Blueprint && !Existing.IsNone() ? MakeShared<FKismetNameValidator>(Blueprint, Existing) : TSharedPtr<INameValidatorInterface>();
}

#undef LOCTEXT_NAMESPACE
