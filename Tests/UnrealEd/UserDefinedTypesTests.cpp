#include "BlueprintEditTest.h"
#include "Engine/UserDefinedEnum.h"
#include "Engine/UserDefinedStruct.h"
#include "K2Node_BreakStruct.h"
#include "K2Node_MakeStruct.h"
#include "K2Node_SwitchEnum.h"
#include "Kismet2/EnumEditorUtils.h"
#include "Kismet2/StructureEditorUtils.h"
#include "UObject/UnrealType.h"

namespace
{
class FUserDefinedTypesTest : public FBlueprintEditTest
{
protected:
	static UPackage* MakePackage(const TCHAR* Name)
	{
		return CreatePackage(*FString::Printf(TEXT("/Game/%s_%s"), Name, *FGuid::NewGuid().ToString()));
	}

	/** A structure with an integer "Count" and a string "Label". */
	UUserDefinedStruct* MakeStruct(const TCHAR* Name)
	{
		UUserDefinedStruct* const Struct =
			FStructureEditorUtils::CreateUserDefinedStruct(MakePackage(Name), Name, RF_Public | RF_Standalone | RF_Transactional);
		FStructureEditorUtils::ChangeVariableType(Struct, Guid(Struct, 0), MakeType(UEdGraphSchema_K2::PC_Int));
		FStructureEditorUtils::RenameVariable(Struct, Guid(Struct, 0), TEXT("Count"));
		FStructureEditorUtils::AddVariable(Struct, MakeType(UEdGraphSchema_K2::PC_String));
		FStructureEditorUtils::RenameVariable(Struct, Guid(Struct, 1), TEXT("Label"));
		return Struct;
	}

	static FGuid Guid(const UUserDefinedStruct* Struct, int32 Index) { return FStructureEditorUtils::GetVarDesc(Struct)[Index].VarGuid; }

	FEdGraphPinType TypeOf(UScriptStruct* Struct) { return MakeType(UEdGraphSchema_K2::PC_Struct, NAME_None, Struct); }

	/** The member's text in the variable of the Blueprint's default object. */
	FString Value(const TCHAR* Variable, const UUserDefinedStruct* Struct, const TCHAR* Member) const
	{
		const UClass* const Class = Blueprint->GeneratedClass;
		const FStructProperty* const Property = FindFProperty<FStructProperty>(Class, Variable);
		const FProperty* const Inner = FStructureEditorUtils::GetPropertyByFriendlyName(Struct, Member);
		if (!Property || Property->Struct != Struct || !Inner)
		{
			return TEXT("(no such member)");
		}
		FString Text;
		Inner->ExportTextItem_InContainer(
			Text, Property->ContainerPtrToValuePtr<void>(Class->GetDefaultObject()), nullptr, nullptr, PPF_None);
		return Text;
	}

	void SetValue(const TCHAR* Variable, const UUserDefinedStruct* Struct, const TCHAR* Member, const TCHAR* Text)
	{
		const FStructProperty* const Property = FindFProperty<FStructProperty>(Blueprint->GeneratedClass.Get(), Variable);
		void* const Container = Property->ContainerPtrToValuePtr<void>(Blueprint->GeneratedClass->GetDefaultObject());
		FStructureEditorUtils::GetPropertyByFriendlyName(Struct, Member)->ImportText_InContainer(Text, Container, nullptr, PPF_None);
	}
};

TEST_F(FUserDefinedTypesTest, InstancesStartWithTheMembersDefaults)
{
	UUserDefinedStruct* const Struct = MakeStruct(TEXT("S_Item"));
	EXPECT_TRUE(FStructureEditorUtils::ChangeVariableDefaultValue(Struct, Guid(Struct, 0), TEXT("12")));
	EXPECT_FALSE(FStructureEditorUtils::ChangeVariableDefaultValue(Struct, Guid(Struct, 0), TEXT("twelve")));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Item"), TypeOf(Struct));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Count")), TEXT("12"));
	EXPECT_EQ(Struct->Status, UDSS_UpToDate);
	EXPECT_EQ(Struct->GetAuthoredNameForField(FStructureEditorUtils::GetPropertyByFriendlyName(Struct, TEXT("Count"))), TEXT("Count"));
}

TEST_F(FUserDefinedTypesTest, ValuesInBlueprintsFollowEachEditAndItsUndo)
{
	UUserDefinedStruct* const Struct = MakeStruct(TEXT("S_Item"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Item"), TypeOf(Struct));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	SetValue(TEXT("Item"), Struct, TEXT("Count"), TEXT("42"));
	SetValue(TEXT("Item"), Struct, TEXT("Label"), TEXT("sword"));
	GEditor->ResetTransaction(Title(TEXT("Test")));

	ASSERT_TRUE(FStructureEditorUtils::AddVariable(Struct, MakeType(UEdGraphSchema_K2::PC_Name)));
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Count")), TEXT("42"));
	ASSERT_TRUE(FStructureEditorUtils::RenameVariable(Struct, Guid(Struct, 0), TEXT("Number")));
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Number")), TEXT("42"));
	ASSERT_TRUE(FStructureEditorUtils::MoveVariable(Struct, Guid(Struct, 1), FStructureEditorUtils::MD_Up));
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Label")), TEXT("sword"));
	ASSERT_TRUE(FStructureEditorUtils::ChangeVariableType(Struct, Guid(Struct, 1), MakeType(UEdGraphSchema_K2::PC_Int64)));
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Number")), TEXT("42"));
	Collect();
	ASSERT_TRUE(Undo() && Undo() && Undo());
	EXPECT_EQ(FStructureEditorUtils::GetVarDesc(Struct)[0].FriendlyName, TEXT("Count"));
	EXPECT_EQ(FStructureEditorUtils::GetVarDesc(Struct).Num(), 3);
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Count")), TEXT("42"));
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Label")), TEXT("sword"));
	ASSERT_TRUE(Undo());
	EXPECT_EQ(FStructureEditorUtils::GetVarDesc(Struct).Num(), 2);
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Label")), TEXT("sword"));
	ASSERT_TRUE(Redo() && Redo());
	EXPECT_EQ(Value(TEXT("Item"), Struct, TEXT("Number")), TEXT("42"));
}

TEST_F(FUserDefinedTypesTest, ValuesWithinArraysAndOtherStructuresFollow)
{
	UUserDefinedStruct* const Inner = MakeStruct(TEXT("S_Inner"));
	UUserDefinedStruct* const Outer = MakeStruct(TEXT("S_Outer"));
	FEdGraphPinType Many = TypeOf(Inner);
	Many.ContainerType = EPinContainerType::Array;
	ASSERT_TRUE(FStructureEditorUtils::AddVariable(Outer, Many));
	ASSERT_TRUE(FStructureEditorUtils::RenameVariable(Outer, Guid(Outer, 2), TEXT("Many")));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Item"), TypeOf(Outer));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const FString CountName = FStructureEditorUtils::GetVarDesc(Inner)[0].VarName.ToString();
	SetValue(TEXT("Item"), Outer, TEXT("Many"), *FString::Printf(TEXT("((%s=1),(%s=2))"), *CountName, *CountName));
	ASSERT_TRUE(FStructureEditorUtils::AddVariable(Inner, MakeType(UEdGraphSchema_K2::PC_Boolean)));
	ASSERT_TRUE(FStructureEditorUtils::RenameVariable(Inner, Guid(Inner, 0), TEXT("Number")));
	Collect();
	const FString Text = Value(TEXT("Item"), Outer, TEXT("Many"));
	const FString NumberName = FStructureEditorUtils::GetVarDesc(Inner)[0].VarName.ToString();
	EXPECT_TRUE(Text.Contains(NumberName + TEXT("=1")) && Text.Contains(NumberName + TEXT("=2"))) << TCHAR_TO_UTF8(*Text);
	FString Reason;
	EXPECT_FALSE(FStructureEditorUtils::CanHaveAMemberVariableOfType(Inner, TypeOf(Outer), &Reason));
	EXPECT_EQ(Reason, TEXT("Struct recursion is not allowed."));
	EXPECT_FALSE(FStructureEditorUtils::AddVariable(Inner, TypeOf(Inner)));
	EXPECT_FALSE(FStructureEditorUtils::AddVariable(Inner, MakeType(UEdGraphSchema_K2::PC_Exec)));
}

TEST_F(FUserDefinedTypesTest, NodesOfAStructureFollowItsMembers)
{
	UUserDefinedStruct* const Struct = MakeStruct(TEXT("S_Item"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Item"), TypeOf(Struct));
	UK2Node_MakeStruct* const Make = AddNode<UK2Node_MakeStruct>(Graph, [Struct](UK2Node_MakeStruct& Node)
		{ Node.StructType = Struct; });
	UK2Node_BreakStruct* const Break =
		AddNode<UK2Node_BreakStruct>(Graph, [Struct](UK2Node_BreakStruct& Node)
			{ Node.StructType = Struct; });
	const FName CountName = FStructureEditorUtils::GetVarDesc(Struct)[0].VarName;
	ASSERT_NE(Make->FindPin(CountName), nullptr);
	ASSERT_TRUE(FStructureEditorUtils::AddVariable(Struct, MakeType(UEdGraphSchema_K2::PC_Name)));
	const FName AddedName = FStructureEditorUtils::GetVarDesc(Struct)[2].VarName;
	EXPECT_NE(Make->FindPin(AddedName), nullptr);
	EXPECT_NE(Break->FindPin(AddedName), nullptr);
	Undo();
	EXPECT_EQ(Make->FindPin(AddedName), nullptr);
	EXPECT_NE(Make->FindPin(CountName), nullptr);
}

TEST_F(FUserDefinedTypesTest, AStructureKeepsAMemberAndItsNamesApart)
{
	UUserDefinedStruct* const Struct = MakeStruct(TEXT("S_Item"));
	EXPECT_FALSE(FStructureEditorUtils::RenameVariable(Struct, Guid(Struct, 1), TEXT("Count")));
	EXPECT_FALSE(FStructureEditorUtils::RenameVariable(Struct, Guid(Struct, 1), TEXT("  ")));
	EXPECT_TRUE(FStructureEditorUtils::RemoveVariable(Struct, Guid(Struct, 1)));
	EXPECT_FALSE(FStructureEditorUtils::RemoveVariable(Struct, Guid(Struct, 0)));
	EXPECT_FALSE(FStructureEditorUtils::RemoveVariable(Struct, FGuid::NewGuid()));
	EXPECT_EQ(FStructureEditorUtils::GetVarDesc(Struct).Num(), 1);
}

TEST_F(FUserDefinedTypesTest, EnumValuesFollowTheirEnumeratorsName)
{
	UUserDefinedEnum* const Enum = CastChecked<UUserDefinedEnum>(
		FEnumEditorUtils::CreateUserDefinedEnum(MakePackage(TEXT("E_Door")), TEXT("E_Door"), RF_Public | RF_Standalone | RF_Transactional));
	for (const TCHAR* const Name : {TEXT("Open"), TEXT("Closed"), TEXT("Locked")})
	{
		FEnumEditorUtils::AddNewEnumeratorForUserDefinedEnum(Enum);
		EXPECT_TRUE(FEnumEditorUtils::SetEnumeratorDisplayName(Enum, Enum->NumEnums() - 2, Title(Name)));
	}
	EXPECT_FALSE(FEnumEditorUtils::SetEnumeratorDisplayName(Enum, 0, Title(TEXT("Locked"))));
	FBlueprintEditorUtils::AddMemberVariable(
		Blueprint, TEXT("State"), MakeType(UEdGraphSchema_K2::PC_Byte, NAME_None, Enum), TEXT("NewEnumerator2"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const auto GetState = [this]
	{
		FString Text;
		const UClass* const Class = Blueprint->GeneratedClass;
		Class->FindPropertyByName(TEXT("State"))->ExportTextItem_InContainer(Text, Class->GetDefaultObject(), nullptr, nullptr, PPF_None);
		return Text;
	};
	ASSERT_EQ(GetState(), TEXT("NewEnumerator2"));
	UK2Node_SwitchEnum* const Switch = AddNode<UK2Node_SwitchEnum>(Graph, [Enum](UK2Node_SwitchEnum& Node)
		{ Node.SetEnum(Enum); });
	GEditor->ResetTransaction(Title(TEXT("Test")));

	FEnumEditorUtils::RemoveEnumeratorFromUserDefinedEnum(Enum, 0);
	EXPECT_EQ(GetState(), TEXT("NewEnumerator2")) << "its number changed, not its name";
	EXPECT_EQ(Enum->GetDisplayNameTextByIndex(1).ToString(), TEXT("Locked"));
	EXPECT_EQ(Switch->FindPin(TEXT("NewEnumerator0")), nullptr);
	FEnumEditorUtils::MoveEnumeratorInUserDefinedEnum(Enum, 1, 0);
	EXPECT_EQ(GetState(), TEXT("NewEnumerator2"));
	Undo();
	EXPECT_EQ(GetState(), TEXT("NewEnumerator2"));
	Undo();
	EXPECT_EQ(GetState(), TEXT("NewEnumerator2"));
	EXPECT_EQ(Enum->GetDisplayNameTextByIndex(0).ToString(), TEXT("Open"));
	EXPECT_NE(Switch->FindPin(TEXT("NewEnumerator0")), nullptr);
	FEnumEditorUtils::RemoveEnumeratorFromUserDefinedEnum(Enum, 2);
	EXPECT_EQ(GetState(), TEXT("NewEnumerator0")) << "a value without an enumerator is the first";
}
}
