#include "StandardMacros.h"

#include "EdGraph/EdGraph.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_MacroInstance.h"
#include "K2Node_Tunnel.h"
#include "StandardMacroGraphs.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "StandardMacros"

namespace
{
const TCHAR* const LibraryFolder = TEXT("/Engine/EditorBlueprintResources");
const TCHAR* const AnyLibrary = TEXT("StandardMacros");
/** What only an actor can do. */
const TCHAR* const ActorLibrary = TEXT("ActorMacros");

enum class EMacroPinType : uint8
{
	Exec,
	Boolean,
	Integer,
	Object,
	Wildcard,
	WildcardArray
};

struct FMacroPin
{
	/** Null for the pin without a name. */
	const TCHAR* Name;
	EMacroPinType Type = EMacroPinType::Exec;
	const TCHAR* Default = TEXT("");
};

struct FMacro
{
	const TCHAR* Name;
	/** Null where the id is made of the macro's path. */
	const TCHAR* GraphGuid;
	const TCHAR* Category;
	const TCHAR* ToolTip;
	const TCHAR* Keywords;
	TArray<FMacroPin> Inputs;
	TArray<FMacroPin> Outputs;
	const TCHAR* Library = AnyLibrary;
};

const TCHAR* const FlowControl = TEXT("Utilities|FlowControl");
const TCHAR* const ArrayCategory = TEXT("Utilities|Array");

const TArray<FMacro>& GetMacros()
{
	using EType = EMacroPinType;
	static const TArray<FMacroPin> ArrayLoopOutputs = {
		{TEXT("LoopBody")}, {TEXT("Array Element"), EType::Wildcard}, {TEXT("Array Index"), EType::Integer}, {TEXT("Completed")}};
	static const TArray<FMacroPin> IndexLoopOutputs = {{TEXT("LoopBody")}, {TEXT("Index"), EType::Integer}, {TEXT("Completed")}};
	static const TArray<FMacro> Macros = {
		{TEXT("ForEachLoop"), TEXT("99DBFD5540A796041F72A5A9DA655026"), ArrayCategory,
			TEXT("Executes the loop body once for each element of the array"), TEXT("for each array loop"),
			{{TEXT("Exec")}, {TEXT("Array"), EType::WildcardArray}}, ArrayLoopOutputs},
		{TEXT("ForEachLoopWithBreak"), nullptr, ArrayCategory,
			TEXT("Executes the loop body for each element of the array, until it is broken off"), TEXT("for each array loop break"),
			{{TEXT("Exec")}, {TEXT("Array"), EType::WildcardArray}, {TEXT("Break")}}, ArrayLoopOutputs},
		{TEXT("ReverseForEachLoop"), nullptr, ArrayCategory,
			TEXT("Executes the loop body once for each element of the array, the last one first"), TEXT("for each array loop reverse"),
			{{TEXT("Exec")}, {TEXT("Array"), EType::WildcardArray}}, ArrayLoopOutputs},
		{TEXT("ForLoop"), nullptr, FlowControl, TEXT("Executes the loop body for each index from the first to the last"), TEXT("for loop"),
			{{TEXT("execute")}, {TEXT("FirstIndex"), EType::Integer}, {TEXT("LastIndex"), EType::Integer}}, IndexLoopOutputs},
		{TEXT("ForLoopWithBreak"), nullptr, FlowControl,
			TEXT("Executes the loop body for each index from the first to the last, until it is broken off"), TEXT("for loop break"),
			{{TEXT("execute")}, {TEXT("FirstIndex"), EType::Integer}, {TEXT("LastIndex"), EType::Integer}, {TEXT("Break")}},
			IndexLoopOutputs},
		{TEXT("WhileLoop"), nullptr, FlowControl, TEXT("Executes the loop body as long as the condition holds"), TEXT("while loop"),
			{{TEXT("execute")}, {TEXT("Condition"), EType::Boolean}}, {{TEXT("LoopBody")}, {TEXT("Completed")}}},
		{TEXT("DoOnce"), nullptr, FlowControl, TEXT("Goes on the first time alone, until it is reset"), TEXT("once"),
			{{TEXT("execute")}, {TEXT("Reset")}, {TEXT("Start Closed"), EType::Boolean}}, {{TEXT("Completed")}}},
		{TEXT("Do N"), nullptr, FlowControl, TEXT("Goes on the first N times alone, until it is reset"), TEXT("do n times"),
			{{TEXT("Enter")}, {TEXT("N"), EType::Integer}, {TEXT("Reset")}}, {{TEXT("Exit")}, {TEXT("Counter"), EType::Integer}}},
		{TEXT("FlipFlop"), TEXT("BFFFAAE4434E166F549665AD1AA89B60"), FlowControl, TEXT("Goes on by A and by B in turn"), TEXT("toggle"),
			{{nullptr}}, {{TEXT("A")}, {TEXT("B")}, {TEXT("IsA"), EType::Boolean}}},
		{TEXT("Gate"), nullptr, FlowControl, TEXT("Goes on while it is open"), TEXT("gate open close"),
			{{TEXT("Enter")}, {TEXT("Open")}, {TEXT("Close")}, {TEXT("Toggle")}, {TEXT("bStartClosed"), EType::Boolean}}, {{TEXT("Exit")}}},
		{TEXT("IsValid"), TEXT("64422BCD430703FF5CAEA8B79A32AA65"), TEXT("Utilities"),
			TEXT("Goes on by whether the object exists and is not about to be destroyed"), TEXT("valid null none"),
			{{TEXT("exec")}, {TEXT("InputObject"), EType::Object}}, {{TEXT("Is Valid")}, {TEXT("Is Not Valid")}}},
		{TEXT("Switch Has Authority"), nullptr, TEXT("Networking"), TEXT("Goes on by whether this instance has authority over the actor"),
			TEXT("server client authority"), {{TEXT("execute")}}, {{TEXT("Authority")}, {TEXT("Remote")}}, ActorLibrary},
		{TEXT("Can Execute Cosmetic Events"), nullptr, TEXT("Networking"), TEXT("Goes on by whether there is anybody to see and hear"),
			TEXT("cosmetic dedicated server"), {{TEXT("execute")}}, {{TEXT("True")}, {TEXT("False")}}, ActorLibrary},
	};
	return Macros;
}

FEdGraphPinType MakePinType(const EMacroPinType Type)
{
	using Schema = UEdGraphSchema_K2;
	static const FName Categories[] = {
		Schema::PC_Exec, Schema::PC_Boolean, Schema::PC_Int, Schema::PC_Object, Schema::PC_Wildcard, Schema::PC_Wildcard};
	FEdGraphPinType PinType;
	PinType.PinCategory = Categories[static_cast<uint8>(Type)];
	PinType.PinSubCategoryObject = Type == EMacroPinType::Object ? UObject::StaticClass() : nullptr;
	PinType.ContainerType = Type == EMacroPinType::WildcardArray ? EPinContainerType::Array : EPinContainerType::None;
	return PinType;
}

void AddPins(UK2Node_Tunnel& Tunnel, const TArray<FMacroPin>& MacroPins, const EEdGraphPinDirection Direction)
{
	for (const FMacroPin& Pin : MacroPins)
	{
		Tunnel.CreateUserDefinedPin(Pin.Name ? FName(Pin.Name) : FName(), MakePinType(Pin.Type), Direction, false);
		Tunnel.UserDefinedPins.Last()->PinDefaultValue = Pin.Default;
	}
}

UEdGraph* CreateMacro(UBlueprint& Library, const FMacro& Macro)
{
	UEdGraph* const Graph = NewObject<UEdGraph>(&Library, FName(Macro.Name), RF_Public);
	Graph->Schema = UEdGraphSchema_K2::StaticClass();
	Graph->bEditable = false;
	Graph->bAllowDeletion = false;
	Graph->bAllowRenaming = false;
	Graph->GraphGuid = FGuid::NewDeterministicGuid(Graph->GetPathName());
	if (Macro.GraphGuid)
	{
		FGuid::Parse(Macro.GraphGuid, Graph->GraphGuid);
	}
	Library.MacroGraphs.Add(Graph);
	GetDefault<UEdGraphSchema_K2>()->CreateMacroGraphTerminators(*Graph, nullptr);
	UK2Node_Tunnel* const Entry = const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(Graph, true));
	UK2Node_Tunnel* const Exit = const_cast<UK2Node_Tunnel*>(UK2Node_MacroInstance::FindTunnel(Graph, false));
	AddPins(*Entry, Macro.Inputs, EGPD_Output);
	AddPins(*Exit, Macro.Outputs, EGPD_Input);
	Entry->MetaData.ToolTip = FText::FromString(Macro.ToolTip);
	Entry->MetaData.Category = FText::FromString(Macro.Category);
	Entry->MetaData.Keywords = FText::FromString(Macro.Keywords);
	WireStandardMacro(*Graph);
	return Graph;
}

FString MakeLibraryPackageName(const TCHAR* Name)
{
	return FString::Printf(TEXT("%s/%s"), LibraryFolder, Name);
}

UBlueprint* FindLibrary(const TCHAR* Name)
{
	return FindObject<UBlueprint>(nullptr, *FString::Printf(TEXT("%s.%s"), *MakeLibraryPackageName(Name), Name));
}

UBlueprint* CreateLibrary(const TCHAR* Name, UClass* ParentClass)
{
	UPackage* const Package = CreatePackage(*MakeLibraryPackageName(Name));
	UBlueprint* const Library = NewObject<UBlueprint>(Package, Name, RF_Public | RF_Standalone);
	Library->AddToRoot();
	Library->BlueprintType = BPTYPE_MacroLibrary;
	Library->ParentClass = ParentClass;
	Library->Status = BS_UpToDate;
	for (const FMacro& Macro : GetMacros())
	{
		if (FCString::Strcmp(Macro.Library, Name) == 0)
		{
			CreateMacro(*Library, Macro);
		}
	}
	Package->SetDirtyFlag(false);
	return Library;
}
}

UBlueprint* FStandardMacros::Create()
{
	if (UBlueprint* const Existing = FindLibrary(AnyLibrary))
	{
		return Existing;
	}
	CreateLibrary(ActorLibrary, AActor::StaticClass());
	return CreateLibrary(AnyLibrary, UObject::StaticClass());
}

UEdGraph* FStandardMacros::Find(FName MacroName)
{
	for (const TCHAR* const Name : {AnyLibrary, ActorLibrary})
	{
		const UBlueprint* const Library = FindLibrary(Name);
		const TObjectPtr<UEdGraph>* const Graph = Library
			? Library->MacroGraphs.FindByPredicate(
				  [MacroName](const TObjectPtr<UEdGraph>& Item)
				  { return Item && Item->GetFName() == MacroName; })
			: nullptr;
		if (Graph)
		{
			return Graph->Get();
		}
	}
	return nullptr;
}

#undef LOCTEXT_NAMESPACE
