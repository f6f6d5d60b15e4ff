#pragma once

#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "Misc/TVariant.h"
#include "VexelExpected.h"

class FLumContext;
class FVexelBlueprintRequestHelper;
class ILumCompound;
class ILumProperty;

/** What an operation of "object_edit" does. The numbers are fixed. */
enum class EVexelEditOperation : uint8
{
	Unknown = 0,
	Update = 1,
	Insert = 2,
	Remove = 3,
	AddVariable = 4,
	RemoveVariable = 5,
	EditVariable = 6,
	AddPin = 7,
	RemovePin = 8,
	EditPin = 9
};

/** What a request of "object_edit" is about. */
enum class EVexelEditTarget : uint8
{
	Unknown = 0,
	Blueprint = 1,
	Graph = 2,
	Node = 3
};

namespace VexelEditWords
{
/** As it stands in the input. */
const TCHAR* GetWord(EVexelEditOperation Operation);
/** The operation that the input's word stands for. */
EVexelEditOperation FindOperation(const FString& Word);
/** All words, in quotes. */
FString ListOperations();
FString ListTargets();
}

/** A change of a value. Its errors are the property model's. */
struct FEditRequestOperationOnProp
{
	EVexelEditOperation Type = EVexelEditOperation::Unknown;
	/** Where it is not empty, the path is the name of a variable of that scope. */
	FString Scope;
	FString PropPath;
	int32 Index = INDEX_NONE;
	/** May be null. */
	TSharedPtr<FJsonValue> Value;

	/** One entry of undo; none when nothing changes. */
	TVexelExpected<void> Execute(const TSharedRef<ILumCompound>& Target, const FLumContext& Context) const;

	/** Whether it is about the name of a graph or a node, by which others know it. */
	bool RenamesTarget() const;

private:
	TVexelExpected<TSharedRef<ILumProperty>> FindProperty(const TSharedRef<ILumCompound>& Target) const;
	TVexelExpected<void> Dispatch(ILumProperty& Property, const FLumContext& Context) const;
	TVexelExpected<void> ExecuteUpdate(ILumProperty& Property, const FLumContext& Context) const;
	TVexelExpected<void> ExecuteInsert(ILumProperty& Property, const FLumContext& Context) const;
	TVexelExpected<void> ExecuteRemove(ILumProperty& Property) const;
};

/** A change of a variable or of a user-defined pin. Its errors are the property model's. */
struct FEditRequestOperationOnVar
{
	EVexelEditOperation Type = EVexelEditOperation::Unknown;
	FString Scope;
	FString Name;
	/** An FLumVarDesc; may be null. */
	TSharedPtr<FJsonValue> Value;

	TVexelExpected<void> Execute(const TSharedRef<ILumCompound>& Target) const;

	/** Whether it gives a name or a type, or removes what had them, that other Blueprints may use. */
	bool ReachesUsers() const;

private:
	TVexelExpected<void> ExecuteAddVariable(ILumCompound& Target) const;
	TVexelExpected<void> ExecuteRemoveVariable(ILumCompound& Target) const;
	TVexelExpected<void> ExecuteEditVariable(ILumCompound& Target) const;
};

/** One request of "object_edit": a target, and what is done with it in order. */
struct FEditRequest
{
	struct FTargetInfo
	{
		EVexelEditTarget Type = EVexelEditTarget::Unknown;
		FString GraphId;
		FString NodeId;

		/** "Node (PrintString_0) in Graph (EventGraph)" */
		FString Describe() const;
	};
	using FOperation = TVariant<FEditRequestOperationOnProp, FEditRequestOperationOnVar>;

	FTargetInfo Target;
	TArray<FOperation> Operations;

	static FEditRequest FromJson(const FJsonObject& Object);

	TVexelExpected<TSharedRef<ILumCompound>> ResolveTarget(const FVexelBlueprintRequestHelper& Blueprint) const;
};
