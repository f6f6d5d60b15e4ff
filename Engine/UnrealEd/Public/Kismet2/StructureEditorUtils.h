#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"
#include "UserDefinedStructure/UserDefinedStructEditorData.h"

class UUserDefinedStruct;
struct FEdGraphPinType;

/**
 * Edits of structures that users make. Each is one transaction; the structure is built again at once, and the Blueprints and
 * structures that use it with it, their values following by the members' ids.
 */
class UNREALED_API FStructureEditorUtils
{
public:
	enum EMoveDirection
	{
		MD_Up,
		MD_Down
	};

	/** A structure with one Boolean member. */
	static UUserDefinedStruct* CreateUserDefinedStruct(UObject* InParent, FName Name, EObjectFlags Flags);
	/** False, with the reason, for a type that would contain the structure or that no member can have. */
	static bool CanHaveAMemberVariableOfType(const UUserDefinedStruct* Struct, const FEdGraphPinType& VarType, FString* OutMsg = nullptr);

	static bool AddVariable(UUserDefinedStruct* Struct, const FEdGraphPinType& VarType);
	/** False for the last member: a structure has at least one. */
	static bool RemoveVariable(UUserDefinedStruct* Struct, FGuid VarGuid);
	/** False for a name that another member has, or that is none. */
	static bool RenameVariable(UUserDefinedStruct* Struct, FGuid VarGuid, const FString& NewDisplayNameStr);
	static bool ChangeVariableType(UUserDefinedStruct* Struct, FGuid VarGuid, const FEdGraphPinType& NewType);
	/** False for a text that is no value of the member's type. */
	static bool ChangeVariableDefaultValue(UUserDefinedStruct* Struct, FGuid VarGuid, const FString& NewDefaultValue);
	static bool ChangeVariableTooltip(UUserDefinedStruct* Struct, FGuid VarGuid, const FString& InTooltip);
	static bool ChangeTooltip(UUserDefinedStruct* Struct, const FString& InTooltip);
	static bool MoveVariable(UUserDefinedStruct* Struct, FGuid VarGuid, EMoveDirection MoveDirection);

	static TArray<FStructVariableDescription>& GetVarDesc(UUserDefinedStruct* Struct);
	static const TArray<FStructVariableDescription>& GetVarDesc(const UUserDefinedStruct* Struct);
	static FStructVariableDescription* GetVarDescByGuid(UUserDefinedStruct* Struct, FGuid VarGuid);
	static FString GetVariableFriendlyName(const UUserDefinedStruct* Struct, FGuid VarGuid);
	static FGuid GetGuidForProperty(const FProperty* Property);
	static FProperty* GetPropertyByFriendlyName(const UUserDefinedStruct* Struct, FString DisplayName);
	static bool IsUniqueVariableFriendlyName(const UUserDefinedStruct* Struct, const FString& DisplayName);

	/** Builds the structure, and what uses it, from its members' descriptions. */
	static void OnStructureChanged(UUserDefinedStruct* Struct);
	static void CompileStructure(UUserDefinedStruct* Struct) { OnStructureChanged(Struct); }
};
