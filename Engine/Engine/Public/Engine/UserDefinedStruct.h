#pragma once

#include "UObject/Class.h"
#include "UObject/ObjectMacros.h"

#include "UserDefinedStruct.generated.h"

class FReferenceCollector;

/** What the last compile said of a user's structure. */
UENUM()
enum EUserDefinedStructureStatus : int
{
	UDSS_UpToDate,
	UDSS_Dirty,
	UDSS_Error,
	UDSS_Duplicate,
	UDSS_MAX
};

/** A structure that a user made as an asset. Its members' names carry an id behind them; see GetAuthoredNameForField. */
UCLASS()
class ENGINE_API UUserDefinedStruct : public UScriptStruct
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TEnumAsByte<enum EUserDefinedStructureStatus> Status = UDSS_UpToDate;

	UPROPERTY()
	FGuid Guid;

	/** The editor's own description of the members. */
	UPROPERTY()
	TObjectPtr<UObject> EditorData = nullptr;

	/** The id that a member's property name ends in, which renames keep; invalid without one. */
	static FGuid GetMemberGuid(FName PropertyName);
	/** Two names of one member, which was renamed between. */
	static bool IsSameMember(FName A, FName B);
	/** The values that an instance starts with; null before the first SetDefaults. Owned by the struct. */
	const uint8* GetDefaultInstance() const { return DefaultInstance; }
	/** Has Fill set the values that instances start with, in an instance that has the types' own. Call after the members changed. */
	void SetDefaults(TFunctionRef<void(uint8*)> Fill);
	/** Gives the members and the defaults to an empty struct, for the instances that have this layout; this one is empty then. */
	void MoveMembersTo(UUserDefinedStruct& Other);

	using UScriptStruct::GetAuthoredNameForField;
	virtual FString GetAuthoredNameForField(const FField* Field) const override;
	/** A member by the id in its name, so that values follow a rename. */
	virtual FProperty* CustomFindProperty(const FName InName) const override;
	virtual FGuid GetCustomGuid() const override { return Guid; }
	virtual void InitializeStruct(void* Dest, int32 ArrayDim = 1) const override;
	virtual void FinishDestroy() override;
	static void AddReferencedObjects(UObject* InThis, FReferenceCollector& Collector);

private:
	void FreeDefaultInstance();

	uint8* DefaultInstance = nullptr;
};
