#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SimpleConstructionScript.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UnrealType.h"

// What the asset registry is told of Blueprints and their classes, in the engine's own forms.

namespace
{
using FTags = TArray<UObject::FAssetRegistryTag>;

void Add(FTags& Tags, const TCHAR* Name, const FString& Value,
	UObject::FAssetRegistryTag::ETagType Type = UObject::FAssetRegistryTag::TT_Alphabetical)
{
	Tags.Add(UObject::FAssetRegistryTag(FName(Name), Value, Type));
}

void AddNumber(FTags& Tags, const TCHAR* Name, int64 Value)
{
	Add(Tags, Name, FString::Printf(TEXT("%lld"), static_cast<long long>(Value)), UObject::FAssetRegistryTag::TT_Numerical);
}

void AddClass(FTags& Tags, const TCHAR* Name, const UClass* Class)
{
	Add(Tags, Name, Class ? Class->GetClass()->GetPathName() + TEXT("'") + Class->GetPathName() + TEXT("'") : FString(TEXT("None")));
}

/** The flags of a class as the editor has them: of one that is in use, what its file need not say. */
void AddFlags(FTags& Tags, const UClass& Class)
{
	AddNumber(Tags, TEXT("ClassFlags"), static_cast<uint32>(Class.GetClassFlags() | CLASS_ReplicationDataIsSetUp | CLASS_TokenStreamAssembled));
}

/** A member in its text form. */
void AddMember(FTags& Tags, const UObject& Object, const TCHAR* Name)
{
	const FProperty* const Property = Object.GetClass()->FindPropertyByName(FName(Name));
	FString Value;
	if (Property)
	{
		Property->ExportTextItem_InContainer(Value, &Object, nullptr, nullptr, PPF_None);
	}
	Add(Tags, Name, Value);
}

const UClass* FindNativeClass(const UClass* Class)
{
	while (Class && !Class->HasAnyClassFlags(CLASS_Native))
	{
		Class = Class->GetSuperClass();
	}
	return Class;
}

int32 CountReplicatedProperties(const UClass* Class)
{
	int32 Count = 0;
	for (TFieldIterator<FProperty> It(Class, EFieldIteratorFlags::ExcludeSuper); It; ++It)
	{
		Count += It->HasAnyPropertyFlags(CPF_Net) ? 1 : 0;
	}
	return Count;
}

bool HasOwnNodes(const TArray<TObjectPtr<UEdGraph>>& Graphs)
{
	for (const UEdGraph* const Graph : Graphs)
	{
		const bool bHas = Graph &&
			Graph->Nodes.ContainsByPredicate([](const UEdGraphNode* Node)
				{ return Node && !Node->IsAutomaticallyPlacedGhostNode(); });
		if (bHas)
		{
			return true;
		}
	}
	return false;
}

bool HasOwnComponents(const UBlueprint& Blueprint)
{
	const USimpleConstructionScript* const Script = Blueprint.SimpleConstructionScript;
	return Script && Script->GetAllNodes().ContainsByPredicate([Script](const USCS_Node* Node)
						 { return Node != Script->GetDefaultSceneRootNode(); });
}

/** Whether a Blueprint does no more than give its parent other values. */
bool IsDataOnly(const UBlueprint& Blueprint)
{
	static const FName ConstructionScript(TEXT("UserConstructionScript"));
	if (Blueprint.BlueprintType == BPTYPE_Interface || Blueprint.BlueprintType == BPTYPE_MacroLibrary)
	{
		return false;
	}
	// The construction script's graph is there from the start, with its entry and at times a call of the parent's.
	constexpr int32 MaxNodesOfEmptyScript = 2;
	for (const UEdGraph* const Graph : Blueprint.FunctionGraphs)
	{
		if (Graph && (Graph->GetFName() != ConstructionScript || Graph->Nodes.Num() > MaxNodesOfEmptyScript))
		{
			return false;
		}
	}
	return Blueprint.NewVariables.IsEmpty() && Blueprint.DelegateSignatureGraphs.IsEmpty() && Blueprint.MacroGraphs.IsEmpty() &&
		Blueprint.Timelines.IsEmpty() && Blueprint.ImplementedInterfaces.IsEmpty() && !HasOwnNodes(Blueprint.UbergraphPages) &&
		!HasOwnComponents(Blueprint);
}
}

void UBlueprint::GetAssetRegistryTags(TArray<FAssetRegistryTag>& OutTags) const
{
	Super::GetAssetRegistryTags(OutTags);
	Add(OutTags, TEXT("BlueprintCategory"), BlueprintCategory);
	AddNumber(OutTags, TEXT("BlueprintComponents"), SimpleConstructionScript ? SimpleConstructionScript->GetAllNodes().Num() : 0);
	Add(OutTags, TEXT("BlueprintDescription"), BlueprintDescription);
	Add(OutTags, TEXT("BlueprintDisplayName"), BlueprintDisplayName);
	Add(OutTags, TEXT("BlueprintNamespace"), BlueprintNamespace);
	Add(OutTags, TEXT("BlueprintPath"), GetName());
	Add(OutTags, TEXT("BlueprintType"), StaticEnum<EBlueprintType>()->GetNameStringByValue(BlueprintType));
	if (GeneratedClass)
	{
		AddFlags(OutTags, *GeneratedClass.Get());
	}
	AddClass(OutTags, TEXT("GeneratedClass"), GeneratedClass);
	AddMember(OutTags, *this, TEXT("ImplementedInterfaces"));
	AddMember(OutTags, *this, TEXT("ImportedNamespaces"));
	Add(OutTags, TEXT("IsDataOnly"), IsDataOnly(*this) ? TEXT("True") : TEXT("False"));
	AddClass(OutTags, TEXT("NativeParentClass"), FindNativeClass(ParentClass));
	AddNumber(OutTags, TEXT("NumReplicatedProperties"), GeneratedClass ? CountReplicatedProperties(GeneratedClass) : 0);
	AddClass(OutTags, TEXT("ParentClass"), ParentClass);
}

void UBlueprintGeneratedClass::GetAssetRegistryTags(TArray<FAssetRegistryTag>& OutTags) const
{
	Super::GetAssetRegistryTags(OutTags);
	if (const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(this))
	{
		Add(OutTags, TEXT("BlueprintType"), StaticEnum<EBlueprintType>()->GetNameStringByValue(Blueprint->BlueprintType));
	}
	AddFlags(OutTags, *this);
	Add(OutTags, TEXT("ModuleName"), FPackageName::GetShortName(GetOutermost()->GetName()));
	Add(OutTags, TEXT("ModuleRelativePath"), FString());
	AddClass(OutTags, TEXT("NativeParentClass"), FindNativeClass(GetSuperClass()));
	AddNumber(OutTags, TEXT("NumReplicatedProperties"), CountReplicatedProperties(this));
	AddClass(OutTags, TEXT("ParentClass"), GetSuperClass());
}
