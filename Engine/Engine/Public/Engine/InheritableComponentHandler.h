#pragma once

#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "InheritableComponentHandler.generated.h"

class UActorComponent;
class UBlueprintGeneratedClass;
class USCS_Node;

/** Names a component that a parent Blueprint declares. */
USTRUCT()
struct ENGINE_API FComponentKey
{
	GENERATED_BODY()

	FComponentKey() = default;
	/** Of a component that a construction script adds. */
	FComponentKey(const USCS_Node* SCSNode);

	/** By the id where both have one, since the name may change. */
	bool Match(const FComponentKey& OtherKey) const;
	/** Of a component of a construction script; one that a node of a graph adds has an id alone. */
	bool IsSCSKey() const { return OwnerClass && !SCSVariableName.IsNone(); }
	bool IsUCSKey() const { return OwnerClass && SCSVariableName.IsNone() && AssociatedGuid.IsValid(); }
	bool IsValid() const { return IsSCSKey() || IsUCSKey(); }

	/** The node that the owner has of this key; null when it is gone, and for components of graphs. */
	USCS_Node* FindSCSNode() const;
	/** The template of the Blueprint that declares the component; null where FindSCSNode is. */
	UActorComponent* GetOriginalTemplate() const;

	UClass* GetComponentOwner() const { return OwnerClass; }
	FName GetSCSVariableName() const { return SCSVariableName; }
	FGuid GetAssociatedGuid() const { return AssociatedGuid; }

private:
	UPROPERTY()
	TObjectPtr<UClass> OwnerClass = nullptr;

	UPROPERTY()
	FName SCSVariableName;

	UPROPERTY()
	FGuid AssociatedGuid;
};

/** A Blueprint's own template for an inherited component. */
USTRUCT()
struct FComponentOverrideRecord
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UClass> ComponentClass = nullptr;

	UPROPERTY()
	TObjectPtr<UActorComponent> ComponentTemplate = nullptr;

	UPROPERTY()
	FComponentKey ComponentKey;
};

/**
 * The overrides that a Blueprint makes of its parents' components. Its outer is the Blueprint's class, and so is the outer of the
 * templates: they bear the names of the templates that they override, by which they find those as their archetypes.
 */
UCLASS()
class ENGINE_API UInheritableComponentHandler : public UObject
{
	GENERATED_BODY()

public:
	/** What the name of an override of a default scene root begins with: the Blueprint may have a template of the bare name itself. */
	static const FString SCSDefaultSceneRootOverrideNamePrefix;

	/** Null when the component is not overridden. */
	UActorComponent* GetOverridenComponentTemplate(const FComponentKey& InKey) const;
	/**
	 * The override, made as a copy of the nearest parent's template where there is none yet. Null for a key that names no component of a
	 * parent, and where an object of another use has the template's name.
	 */
	UActorComponent* CreateOverridenComponentTemplate(const FComponentKey& Key);
	/** Has the component be the nearest parent's again. */
	void RemoveOverridenComponentTemplate(const FComponentKey& Key);

	bool IsEmpty() const { return Records.IsEmpty(); }
	/** Whether every record names a component that a parent still has. */
	bool IsValid() const;
	void GetAllTemplates(TArray<UActorComponent*>& OutArray) const;
	/** An invalid key for a template that is none of the handler's. */
	FComponentKey FindKey(const UActorComponent* ComponentTemplate) const;

	/** Gives the class templates of its own where the records have another's, as those of a copy do. */
	void UpdateOwnerClass(UBlueprintGeneratedClass* OwnerClass);
	/** Removes the records that name no component of a parent's, and those that make no difference. */
	void ValidateTemplates();
	/**
	 * Brings the records to what the parents have now: keys and templates take new names, and records of components that are gone are
	 * put aside. For a compile, which is no edit: a record that makes no difference stays, since an undo may bring the difference back.
	 */
	void FollowParents();
	/** Takes back what was put aside and is an override again, because an undo brought its component back. */
	void ReclaimTemplates();

	// UObject
	virtual void PostLoad() override;

private:
	friend class USCS_Node;

	FComponentOverrideRecord* FindRecord(const FComponentKey& Key);
	bool IsRecordValid(const FComponentOverrideRecord& Record) const;
	/** Whether something of the template is not its archetype's. */
	static bool IsRecordNecessary(const FComponentOverrideRecord& Record);
	/** Whether the template is of the handler's class: a damaged file may name another's. */
	bool HasOwnTemplate(const FComponentOverrideRecord& Record) const;
	/** Whether a parent has the component that the record's template, which must be there, is for. */
	bool HasOriginal(const FComponentOverrideRecord& Record) const;
	static FName MakeTemplateName(const USCS_Node& Node);
	/** For undo. */
	void Remember();
	/** Gives the record of a node that had another name its name of now, and the template too where no other object has it. */
	void FollowRename(const FComponentKey& OldKey, const USCS_Node& Node);
	static void MoveAway(UActorComponent& Template);

	UPROPERTY()
	TArray<FComponentOverrideRecord> Records;

	/** Records whose components are gone. Their templates are in the transient package, so that their names are free. */
	UPROPERTY(Transient, DuplicateTransient)
	TArray<FComponentOverrideRecord> ObsoleteRecords;
};
