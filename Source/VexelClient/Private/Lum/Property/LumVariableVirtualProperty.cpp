#include "Lum/Property/LumVariableVirtualProperty.h"

#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"

#include "Engine/Blueprint.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"

namespace
{
TVexelExpected<void> SetDefault(UObject& Owner, TArray<FBPVariableDescription>& Descriptions, FName Name, const FString& Text)
{
	FBPVariableDescription* const Description = Descriptions.FindByPredicate([Name](const FBPVariableDescription& Candidate)
		{ return Candidate.VarName == Name; });
	if (!Description)
	{
		return VEXEL_ERROR(FLumError_Write, "Variable '%s' not found", *Name.ToString());
	}
	if (!Description->DefaultValue.Equals(Text, ESearchCase::CaseSensitive))
	{
		Owner.Modify();
		Description->DefaultValue = Text;
		FBlueprintEditorUtils::MarkBlueprintAsModified(Owner.IsA<UBlueprint>() ? CastChecked<UBlueprint>(&Owner) : Owner.GetTypedOuter<UBlueprint>());
	}
	return {};
}
}

FLumMemberVariableVirtualProperty::FLumMemberVariableVirtualProperty(const FValue& InValue, UBlueprint& Blueprint, FName InName)
	: FLumUnrealVirtualProperty(InValue)
	, WeakBlueprint(&Blueprint)
	, Name(InName)
{
}

TVexelExpected<void> FLumMemberVariableVirtualProperty::OnImport()
{
	VEXEL_TRY(UBlueprint* const Blueprint, FLumHelper::GetValid(WeakBlueprint, TEXT("Blueprint object is not valid")));
	return SetDefault(*Blueprint, Blueprint->NewVariables, Name, ExportText());
}

FLumLocalVariableVirtualProperty::FLumLocalVariableVirtualProperty(const FValue& InValue, UK2Node_FunctionEntry& Entry, FName InName)
	: FLumUnrealVirtualProperty(InValue)
	, WeakEntry(&Entry)
	, Name(InName)
{
}

TVexelExpected<void> FLumLocalVariableVirtualProperty::OnImport()
{
	VEXEL_TRY(UK2Node_FunctionEntry* const Entry, FLumHelper::GetValid(WeakEntry, TEXT("Graph does not have a valid function scope")));
	return SetDefault(*Entry, Entry->LocalVariables, Name, ExportText());
}
