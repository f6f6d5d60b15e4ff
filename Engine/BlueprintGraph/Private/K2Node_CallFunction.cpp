#include "K2Node_CallFunction.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
TArray<FName> ParseNames(const FString& List)
{
	TArray<FString> Parts;
	List.ParseIntoArray(Parts, TEXT(","), true);
	TArray<FName> Names;
	for (const FString& Part : Parts)
	{
		Names.Add(FName(*Part.TrimStartAndEnd()));
	}
	return Names;
}

TArray<FName> GetNamesOfMetaData(const UFunction& Function, const FName Key)
{
	return ParseNames(Function.GetMetaData(Key));
}

/** The enum whose values become execution pins; null for a parameter that is no enum. */
const UEnum* GetEnumOfParameter(const FProperty& Parameter)
{
	const FEnumProperty* const Enum = CastField<FEnumProperty>(&Parameter);
	const FByteProperty* const Byte = CastField<FByteProperty>(&Parameter);
	return Enum ? Enum->GetEnum() : Byte ? Byte->Enum
										 : nullptr;
}

/** Parameters whose values are chosen by an execution pin, in the order of the pins. */
TArray<FName> GetExpandedParameters(const UFunction& Function)
{
	TArray<FName> Names = GetNamesOfMetaData(Function, FBlueprintMetadata::MD_ExpandEnumAsExecs);
	Names.Append(GetNamesOfMetaData(Function, FBlueprintMetadata::MD_ExpandBoolAsExecs));
	return Names;
}

/** Metadata names the advanced parameters, or says how many come before the first of them. */
bool IsAdvancedParameter(const UFunction& Function, const FProperty& Parameter, const int32 Index)
{
	const FString& Advanced = Function.GetMetaData(FBlueprintMetadata::MD_AdvancedDisplay);
	if (Parameter.HasAnyPropertyFlags(CPF_AdvancedDisplay) || Advanced.IsEmpty() || Parameter.HasAnyPropertyFlags(CPF_ReturnParm))
	{
		return Parameter.HasAnyPropertyFlags(CPF_AdvancedDisplay);
	}
	return Advanced.IsNumeric() ? Index >= FCString::Atoi(*Advanced) : ParseNames(Advanced).Contains(Parameter.GetFName());
}

/** Whether objects of the Blueprint's class know their world: a plain object does not, nor does a library of functions. */
bool HasWorld(const UBlueprint* Blueprint)
{
	const UClass* Native = Blueprint ? Blueprint->ParentClass.Get() : nullptr;
	while (Native && Native->HasAnyClassFlags(CLASS_CompiledFromBlueprint))
	{
		Native = Native->GetSuperClass();
	}
	const bool bIsLibrary = Blueprint && Blueprint->BlueprintType == BPTYPE_FunctionLibrary;
	return !bIsLibrary && Native != UObject::StaticClass();
}

/** Text of one "@param Name" or "@return" line of a declaration's comment. */
FText GetParameterDescription(const UFunction& Function, const FProperty& Parameter)
{
	const bool bIsReturn = Parameter.HasAnyPropertyFlags(CPF_ReturnParm);
	const FString Tag = bIsReturn ? FString(TEXT("@return")) : FString();
	TArray<FString> Lines;
	Function.GetMetaData(FBlueprintMetadata::MD_Tooltip).ParseIntoArrayLines(Lines);
	for (const FString& Line : Lines)
	{
		FString Rest = Line.TrimStartAndEnd();
		if (bIsReturn && Rest.StartsWith(Tag))
		{
			return FText::FromString(Rest.Mid(Tag.Len()).TrimStartAndEnd());
		}
		if (bIsReturn || !Rest.StartsWith(TEXT("@param")))
		{
			continue;
		}
		Rest = Rest.Mid(6).TrimStartAndEnd();
		FString Name;
		FString Description;
		if (Rest.Split(TEXT(" "), &Name, &Description) && Name == Parameter.GetName())
		{
			return FText::FromString(Description.TrimStartAndEnd());
		}
	}
	return bIsReturn ? Function.GetToolTipText() : FText::GetEmpty();
}

/** Parameters that stand for any type: the ones that metadata of the function says are arrays, sets, maps or structs of no fixed type. */
TSet<FName> GetWildcardParameters(const UFunction& Function)
{
	TSet<FName> Names;
	for (const FName Key : {FBlueprintMetadata::MD_ArrayParam, FBlueprintMetadata::MD_ArrayDependentParam, FBlueprintMetadata::MD_SetParam,
			 FBlueprintMetadata::MD_MapParam, FBlueprintMetadata::MD_MapKeyParam, FBlueprintMetadata::MD_MapValueParam,
			 FBlueprintMetadata::MD_CustomStructureParam})
	{
		for (const FName Name : ParseNames(Function.GetMetaData(Key).Replace(TEXT("|"), TEXT(","))))
		{
			Names.Add(Name);
		}
	}
	return Names;
}
}

UK2Node_CallFunction::UK2Node_CallFunction(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bIsPureFunc(false)
	, bIsConstFunc(false)
	, bWantsEnumToExecExpansion(false)
	, bIsInterfaceCall(false)
	, bIsFinalFunction(false)
	, bIsBeadFunction(false)
{
}

void UK2Node_CallFunction::SetFromFunction(const UFunction* Function)
{
	if (!Function)
	{
		return;
	}
	bIsPureFunc = Function->HasAnyFunctionFlags(FUNC_BlueprintPure);
	bIsConstFunc = Function->HasAnyFunctionFlags(FUNC_Const);
	bWantsEnumToExecExpansion = Function->HasMetaData(FBlueprintMetadata::MD_ExpandEnumAsExecs) ||
		Function->HasMetaData(FBlueprintMetadata::MD_ExpandBoolAsExecs);
	bIsFinalFunction = Function->HasAnyFunctionFlags(FUNC_Final);
	FunctionReference.SetFromField<UFunction>(Function, GetBlueprintClassFromNode());
}

bool UK2Node_CallFunction::HasKnownDefinition() const
{
	return GetTargetFunction() != nullptr;
}

TSet<FName> UK2Node_CallFunction::GetHiddenParameters(const UFunction* Function, const UBlueprint* Blueprint)
{
	TSet<FName> Hidden;
	for (const FName Key : {FBlueprintMetadata::MD_LatentInfo, FBlueprintMetadata::MD_HidePin, FBlueprintMetadata::MD_InternalUseParam,
			 FBlueprintMetadata::MD_ExpandEnumAsExecs, FBlueprintMetadata::MD_ExpandBoolAsExecs})
	{
		for (const FName Name : GetNamesOfMetaData(*Function, Key))
		{
			Hidden.Add(Name);
		}
	}
	// Where "self" knows its world, self is the context.
	const FString* const WorldContext = Function->FindMetaData(FBlueprintMetadata::MD_WorldContext);
	if (WorldContext && HasWorld(Blueprint))
	{
		Hidden.Add(FName(**WorldContext));
	}
	return Hidden;
}

void UK2Node_CallFunction::FollowRenames()
{
	if (FunctionReference.GetMemberGuid().IsValid())
	{
		(void)GetTargetFunction();
	}
}

void UK2Node_CallFunction::AllocateDefaultPins()
{
	const UFunction* const Function = GetTargetFunction();
	if (Function)
	{
		CreatePinsForFunctionCall(Function);
	}
	const bool bHasAdvanced = Pins.ContainsByPredicate([](const UEdGraphPin* Pin)
		{ return Pin->bAdvancedView && !Pin->bHidden; });
	if (bHasAdvanced)
	{
		HideAdvancedPins();
	}
	ConformDynamicOutput();
}

void UK2Node_CallFunction::PostPlacedNewNode()
{
	Super::PostPlacedNewNode();
	const UFunction* const Function = GetTargetFunction();
	const bool bIsForDevelopment = Function && Function->HasMetaData(FName(TEXT("DevelopmentOnly")));
	if (bIsForDevelopment && GetDesiredEnabledState() == ENodeEnabledState::Enabled)
	{
		SetEnabledState(ENodeEnabledState::DevelopmentOnly, false);
	}
}

void UK2Node_CallFunction::CreateExecPinsForFunctionCall(const UFunction* Function)
{
	const TArray<FName> Expanded = bWantsEnumToExecExpansion ? GetExpandedParameters(*Function) : TArray<FName>();
	bool bHasExpandedInput = false;
	bool bHasExpandedOutput = false;
	for (const FName Name : Expanded)
	{
		const FProperty* const Parameter = FindFProperty<FProperty>(Function, Name);
		if (!Parameter)
		{
			continue;
		}
		const EEdGraphPinDirection Side = IsFunctionInput(*Parameter) ? EGPD_Input : EGPD_Output;
		bool& bHasExpanded = Side == EGPD_Input ? bHasExpandedInput : bHasExpandedOutput;
		bHasExpanded = true;
		const UEnum* const Enum = GetEnumOfParameter(*Parameter);
		if (!Enum)
		{
			CreatePin(Side, UEdGraphSchema_K2::PC_Exec, TEXT("True"));
			CreatePin(Side, UEdGraphSchema_K2::PC_Exec, TEXT("False"));
			continue;
		}
		for (const int32 Entry : GetVisibleEnumEntries(Enum))
		{
			CreatePinOfEnumEntry(Side, Enum, Entry);
		}
	}
	if (!bHasExpandedInput)
	{
		Pins.Insert(CreateExecPin(), 0);
		Pins.Pop();
	}
	if (!bHasExpandedOutput)
	{
		UEdGraphPin* const Then = CreateThenPin();
		if (IsLatentFunction())
		{
			Then->PinFriendlyName = LOCTEXT("CompletedPin", "Completed");
		}
	}
}

UEdGraphPin* UK2Node_CallFunction::CreateSelfPin(const UFunction* Function)
{
	const UFunction* Declaration = Function;
	while (Declaration->GetSuperFunction())
	{
		Declaration = Declaration->GetSuperFunction();
	}
	UClass* const Class = Declaration->GetOwnerClass();
	UEdGraphPin* const Pin = CreateTargetPin(Class);
	if (Function->HasAllFunctionFlags(FUNC_Static))
	{
		Pin->bHidden = true;
		// A library function is called on the library's default object.
		Pin->DefaultObject = Class ? Class->GetAuthoritativeClass()->GetDefaultObject() : nullptr;
	}
	else if (Function->GetBoolMetaData(FBlueprintMetadata::MD_HideSelfPin))
	{
		Pin->bHidden = true;
		Pin->bNotConnectable = true;
	}
	GeneratePinTooltip(*Pin, FText::GetEmpty());
	return Pin;
}

bool UK2Node_CallFunction::CreatePinsForFunctionCall(const UFunction* Function)
{
	if (AllowsExecPins())
	{
		CreateExecPinsForFunctionCall(Function);
	}
	CreateSelfPin(Function);

	const UBlueprint* const Blueprint = GetBlueprint();
	TSet<FName> Hidden = GetHiddenParameters(Function, Blueprint);
	if (!bWantsEnumToExecExpansion)
	{
		for (const FName Name : GetExpandedParameters(*Function))
		{
			Hidden.Remove(Name);
		}
	}
	const TSet<FName> Wildcards = GetWildcardParameters(*Function);
	const TArray<FName> Internal = GetNamesOfMetaData(*Function, FBlueprintMetadata::MD_InternalUseParam);
	const TArray<FName> AutoCreated = GetNamesOfMetaData(*Function, FBlueprintMetadata::MD_AutoCreateRefTerm);
	bool bAllMade = true;
	int32 Index = -1;
	for (TFieldIterator<FProperty> Parameter(Function); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
	{
		++Index;
		FEdGraphPinType Type;
		if (!GetK2Schema()->ConvertPropertyToPinType(*Parameter, Type))
		{
			bAllMade = false;
			continue;
		}
		const FName Name = Parameter->GetFName();
		const bool bIsInput = IsFunctionInput(**Parameter);
		if (Wildcards.Contains(Name) && Type.PinCategory != UEdGraphSchema_K2::PC_Struct &&
			Type.PinCategory != UEdGraphSchema_K2::PC_Wildcard)
		{
			Type.PinCategory = UEdGraphSchema_K2::PC_Wildcard;
			Type.PinSubCategory = NAME_None;
			Type.PinSubCategoryObject = nullptr;
		}
		UEdGraphPin* const Pin = CreatePin(bIsInput ? EGPD_Input : EGPD_Output, Type, Name);
		const bool bIsReference = Parameter->HasAllPropertyFlags(CPF_OutParm | CPF_ReferenceParm);
		Pin->bDefaultValueIsIgnored = bIsReference && (!AutoCreated.Contains(Name) || Type.IsContainer());
		Pin->bAdvancedView = IsAdvancedParameter(*Function, **Parameter, Index);
		const FText DisplayName = Parameter->GetMetaDataText(TEXT("DisplayName"));
		if (!DisplayName.IsEmpty())
		{
			Pin->PinFriendlyName = DisplayName;
		}
		else if (Parameter->HasAnyPropertyFlags(CPF_ReturnParm))
		{
			Pin->PinFriendlyName = Function->GetMetaDataText(FBlueprintMetadata::MD_ReturnDisplayName);
		}
		if (Hidden.Contains(Name))
		{
			Pin->bHidden = true;
			Pin->bNotConnectable = Internal.Contains(Name);
		}
		GetK2Schema()->SetPinDefaultValue(Pin, Function, *Parameter);
		GeneratePinTooltip(*Pin, GetParameterDescription(*Function, **Parameter));
	}
	return bAllMade;
}

void UK2Node_CallFunction::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	// A function may have become pure, or no longer be.
	if (const UFunction* const Function = GetTargetFunction())
	{
		const bool bCanHaveExec = !Function->HasAnyFunctionFlags(FUNC_BlueprintPure);
		bIsPureFunc = bIsPureFunc && bCanHaveExec && Function->HasAnyFunctionFlags(FUNC_Const) ? true : !bCanHaveExec;
	}
	AllocateDefaultPins();
	KeepResolvedWildcards(OldPins);
}

void UK2Node_CallFunction::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	if (Pin)
	{
		ConformWildcards(Pin);
		ConformDynamicOutput();
	}
}

void UK2Node_CallFunction::PinDefaultValueChanged(UEdGraphPin* Pin)
{
	Super::PinDefaultValueChanged(Pin);
	ConformDynamicOutput();
}

void UK2Node_CallFunction::ConformDynamicOutput()
{
	const UFunction* const Function = GetTargetFunction();
	const FString* const Source = Function ? Function->FindMetaData(FBlueprintMetadata::MD_DynamicOutputType) : nullptr;
	const UEdGraphPin* const ClassPin = Source ? FindPin(*Source, EGPD_Input) : nullptr;
	if (!ClassPin)
	{
		return;
	}
	UClass* const Class = GetClassOfPin(ClassPin);
	const FString* const Outputs = Function->FindMetaData(FBlueprintMetadata::MD_DynamicOutputParam);
	for (const FName Name : Outputs ? ParseNames(*Outputs) : TArray<FName>({UEdGraphSchema_K2::PN_ReturnValue}))
	{
		UEdGraphPin* const Output = FindPin(Name, EGPD_Output);
		const FProperty* const Declared = FindFProperty<FProperty>(Function, Name);
		FEdGraphPinType Type;
		if (Output && Declared && GetK2Schema()->ConvertPropertyToPinType(Declared, Type))
		{
			Output->PinType.PinSubCategoryObject = Class ? static_cast<UObject*>(Class) : Type.PinSubCategoryObject.Get();
		}
	}
}

void UK2Node_CallFunction::ConformWildcards(const UEdGraphPin* ChangedPin)
{
	const UFunction* const Function = GetTargetFunction();
	if (!Function)
	{
		return;
	}
	const auto FindPins = [this](const TArray<FName>& Names)
	{
		TArray<UEdGraphPin*> Found;
		for (const FName Name : Names)
		{
			Found.Add(FindPin(Name));
		}
		return Found;
	};
	// "Set|Item,OtherSet|OtherItem": the pins of a group share one type. A struct of any kind is a group of its own.
	TArray<FString> Groups;
	const FString List = Function->GetMetaData(FBlueprintMetadata::MD_SetParam) + TEXT(",") +
		Function->GetMetaData(FBlueprintMetadata::MD_CustomStructureParam);
	List.ParseIntoArray(Groups, TEXT(","), true);
	for (const FString& Group : Groups)
	{
		const TArray<UEdGraphPin*> Shared = FindPins(ParseNames(Group.Replace(TEXT("|"), TEXT(","))));
		if (Shared.Contains(const_cast<UEdGraphPin*>(ChangedPin)))
		{
			FollowLinkedType(Shared);
		}
	}
	const TArray<UEdGraphPin*> Maps = FindPins(GetNamesOfMetaData(*Function, FBlueprintMetadata::MD_MapParam));
	const TArray<UEdGraphPin*> Keys = FindPins(GetNamesOfMetaData(*Function, FBlueprintMetadata::MD_MapKeyParam));
	const TArray<UEdGraphPin*> Values = FindPins(GetNamesOfMetaData(*Function, FBlueprintMetadata::MD_MapValueParam));
	TArray<UEdGraphPin*> OfMap = Maps;
	OfMap.Append(Keys);
	OfMap.Append(Values);
	if (Maps.Num() > 0 && OfMap.Contains(const_cast<UEdGraphPin*>(ChangedPin)))
	{
		FollowLinkedMapType(Maps[0], Keys, Values);
	}
}

void UK2Node_CallFunction::SetFixedParameter(FName ParameterName, const FString& Value)
{
	if (UEdGraphPin* const Pin = FindPin(ParameterName))
	{
		Pin->bHidden = true;
		Pin->AutogeneratedDefaultValue.Empty();
		Pin->DefaultValue = Value;
	}
}

bool UK2Node_CallFunction::AllowMultipleSelfs(bool bInputAsArray) const
{
	const UFunction* const Function = GetTargetFunction();
	return Function && !HasAnyFlags(RF_ArchetypeObject) && !Function->HasAnyFunctionFlags(FUNC_Static) && !IsLatentFunction() &&
		!UEdGraphSchema_K2::HasFunctionAnyOutputParameter(Function);
}

bool UK2Node_CallFunction::IsLatentFunction() const
{
	const UFunction* const Function = GetTargetFunction();
	return Function && Function->HasMetaData(FBlueprintMetadata::MD_Latent);
}

// What the node says of itself

FText UK2Node_CallFunction::GetUserFacingFunctionName(const UFunction* Function, ENodeTitleType::Type NodeTitleType)
{
	return Function ? Function->GetDisplayNameText() : FText::GetEmpty();
}

FText UK2Node_CallFunction::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UFunction* const Function = GetTargetFunction();
	const FText Name = Function ? GetUserFacingFunctionName(Function, TitleType)
								: FText::FromString(FName::NameToDisplayString(FunctionReference.GetMemberName().ToString(), false));
	if (TitleType != ENodeTitleType::FullTitle || !Function || Function->HasAnyFunctionFlags(FUNC_Static))
	{
		return Name;
	}
	const UClass* const Class = Function->GetOwnerClass();
	const UBlueprint* const Blueprint = Class ? UBlueprint::GetBlueprintFromClass(Class) : nullptr;
	if (!Class)
	{
		return Name;
	}
	const FText Target = Blueprint ? FText::FromString(FName::NameToDisplayString(Blueprint->GetName(), false))
								   : Class->GetDisplayNameText();
	return FText::Format(LOCTEXT("CallFunctionOnDifferentContext", "{0}\nTarget is {1}"), Name, Target);
}

FString UK2Node_CallFunction::GetDefaultTooltipForFunction(const UFunction* Function)
{
	return Function ? Function->GetToolTipText().ToString() : FString();
}

FText UK2Node_CallFunction::GetTooltipText() const
{
	const UFunction* const Function = GetTargetFunction();
	if (!Function)
	{
		return FText::Format(
			LOCTEXT("CallUnknownFunction", "Call unknown function {0}"), FText::FromName(FunctionReference.GetMemberName()));
	}
	const FString Text = GetDefaultTooltipForFunction(Function);
	const UClass* const Class = Function->GetOwnerClass();
	return Class && !Function->HasAnyFunctionFlags(FUNC_Static)
		? FText::Format(
			  LOCTEXT("CallFunction_SubtitledTooltip", "{0}\n\nTarget is {1}"), FText::FromString(Text), Class->GetDisplayNameText())
		: FText::FromString(Text);
}

FText UK2Node_CallFunction::GetKeywordsForFunction(const UFunction* Function)
{
	// A user who knows the C++ name searches by it.
	const FText Keywords = Function->GetMetaDataText(FBlueprintMetadata::MD_FunctionKeywords);
	const FText Compact = Function->GetMetaDataText(FBlueprintMetadata::MD_CompactNodeTitle);
	const FString Own = Function->GetName() + TEXT(" ") + Keywords.ToString() + TEXT(" ") + Compact.ToString();
	return FText::FromString(Own.TrimEnd());
}

FText UK2Node_CallFunction::GetKeywords() const
{
	const UFunction* const Function = GetTargetFunction();
	return Function ? GetKeywordsForFunction(Function) : FText::GetEmpty();
}

FText UK2Node_CallFunction::GetDefaultCategoryForFunction(const UFunction* Function, const FText& BaseCategory)
{
	const FText Category = Function->GetMetaDataText(FBlueprintMetadata::MD_FunctionCategory);
	if (Category.IsEmpty() || BaseCategory.IsEmpty())
	{
		return Category.IsEmpty() ? BaseCategory : Category;
	}
	return FText::Format(LOCTEXT("FunctionCategory", "{0}|{1}"), BaseCategory, Category);
}

FText UK2Node_CallFunction::GetMenuCategory() const
{
	const UFunction* const Function = GetTargetFunction();
	return Function ? GetDefaultCategoryForFunction(Function, FText::GetEmpty()) : FText::GetEmpty();
}

FText UK2Node_CallFunction::GetCompactNodeTitle() const
{
	const UFunction* const Function = GetTargetFunction();
	return Function ? Function->GetMetaDataText(FBlueprintMetadata::MD_CompactNodeTitle) : FText::GetEmpty();
}

FName UK2Node_CallFunction::GetCornerIcon() const
{
	return IsLatentFunction() ? FName(TEXT("Graph.Latent.LatentIcon")) : FName();
}

UObject* UK2Node_CallFunction::GetJumpTargetForDoubleClick() const
{
	const UFunction* const Function = GetTargetFunction();
	const UBlueprint* const Blueprint = Function ? UBlueprint::GetBlueprintFromClass(Function->GetOwnerClass()) : nullptr;
	return Blueprint ? UEdGraphSchema_K2::GetFunctionGraph(Blueprint, Function->GetFName()) : nullptr;
}

#undef LOCTEXT_NAMESPACE
