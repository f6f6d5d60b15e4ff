#include "Blueprint/Builders/VexelBlueprintNodeTypeIdBuilder.h"
#include "Blueprint/Builders/VexelBlueprintPropTypeBuilder.h"
#include "Blueprint/Builders/VexelNodeTypeDescription.h"
#include "EdGraphSchema_K2.h"
#include "GameFramework/Actor.h"
#include "LumTestBlueprint.h"

namespace
{
class FBlueprintIdsTest : public FLumTest
{
};

TEST_F(FBlueprintIdsTest, NodeClassWithoutARuleIsLoggedWithItsChain)
{
	const UEdGraphNode& Node = AddBareNode(TEXT("K2Node_Tunnel"));
	EXPECT_TRUE(Mapping.MakeNodeTypeReference(Node).IsEmpty());
	EXPECT_EQ(1,
		Log.Count(
			"No handler found for node class 'K2Node_Tunnel' (K2Node_Tunnel -> K2Node_EditablePinBase -> K2Node -> EdGraphNode -> Object)"));
}

TEST_F(FBlueprintIdsTest, OwnerPrefixLeavesOutWhatTheCompilerAdds)
{
	EXPECT_EQ("", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(nullptr)));
	EXPECT_EQ("Actor.", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(AActor::StaticClass())));
	EXPECT_EQ(ToStd(Blueprint->GetName()) + ".", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(Blueprint->GeneratedClass)));
	EXPECT_EQ(ToStd(Blueprint->GetName()) + ".", ToStd(FVexelBlueprintNodeTypeIdBuilder::MakeOwnerPrefix(Blueprint->SkeletonGeneratedClass)));
}

TEST_F(FBlueprintIdsTest, TypeIdsReadBackAsTheSameType)
{
	for (const TCHAR* const Id : {TEXT("bool"), TEXT("int"), TEXT("real"), TEXT("string"), TEXT("text"), TEXT("exec"), TEXT("byte"),
			 TEXT("object.Actor"), TEXT("class.Actor"), TEXT("softobject.Actor"), TEXT("struct.Vector"), TEXT("enum.ECollisionChannel"),
			 TEXT("array|object.Actor"), TEXT("set|name"), TEXT("map|string,object.Actor")})
	{
		FEdGraphPinType Type;
		ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(Id), Type)) << TCHAR_TO_UTF8(Id);
		EXPECT_EQ(TCHAR_TO_UTF8(Id), ToStd(Mapping.MakePropTypeReference(Type, nullptr).ToString()));
	}
}

TEST_F(FBlueprintIdsTest, MapIdNamesKeyAndValue)
{
	for (const TCHAR* const Id : {TEXT("map|string,object.Actor"), TEXT("map|string|object.Actor")})
	{
		FEdGraphPinType Type;
		ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(Id), Type));
		EXPECT_TRUE(Type.IsMap());
		EXPECT_EQ(UEdGraphSchema_K2::PC_String, Type.PinCategory);
		EXPECT_EQ(UEdGraphSchema_K2::PC_Object, Type.PinValueType.TerminalCategory);
		EXPECT_EQ(AActor::StaticClass(), Type.PinValueType.TerminalSubCategoryObject.Get());
	}
}

TEST_F(FBlueprintIdsTest, TypeOfAnotherBlueprintIsFoundByItsAssetName)
{
	FEdGraphPinType Type;
	ASSERT_TRUE(Mapping.ResolvePropType(TVexelPropTypeId(TEXT("object.") + Blueprint->GetName()), Type));
	EXPECT_EQ(Blueprint->GeneratedClass.Get(), Type.PinSubCategoryObject.Get());
}

struct FBadTypeCase
{
	const TCHAR* Id;
	const char* Reference;
	const char* OfMapping;
};

TEST_F(FBlueprintIdsTest, BadTypeIdsAreRefusedWithTheReason)
{
	const FBadTypeCase Cases[] = {
		{TEXT("list|int"), "Unknown collection type 'list' in pin type reference 'list|int'",
			"Unknown collection type 'list' in pin type 'list|int'"},
		{TEXT("ref|int"), "Unknown collection type 'ref' in pin type reference 'ref|int'",
			"Unknown collection type 'ref' in pin type 'ref|int'"},
		{TEXT("map|int"), "Map pin type 'map|int' is missing value type!", "Map pin type 'map|int' is missing value type!"},
		{TEXT("map|int,"), "Map pin type 'map|int,' is missing value type!", "Map pin type 'map|int,' is missing value type!"},
		{TEXT("map|nothing,int"), "Failed to resolve pin key type 'nothing' from `map|nothing,int`",
			"Failed to resolve pin key type 'nothing' from `map|nothing,int`"},
		{TEXT("map|int,nothing"), "Failed to resolve pin value type 'nothing' from `map|int,nothing`",
			"Failed to resolve map value type 'nothing' in pin type 'map|int,nothing'"},
		{TEXT("object.NoSuchClass"), "Failed to load subcategory object 'NoSuchClass' for pin type 'object.NoSuchClass'!",
			"Failed to load subcategory object 'NoSuchClass' for pin type 'object.NoSuchClass'!"},
	};
	for (const FBadTypeCase& Case : Cases)
	{
		const TVexelExpected<FEdGraphPinType> Parsed = FVexelBlueprintPropTypeBuilder::ParseId(TVexelPropTypeId(Case.Id));
		ASSERT_TRUE(Parsed.HasError()) << TCHAR_TO_UTF8(Case.Id);
		EXPECT_EQ(Case.Reference, ToStd(Parsed.GetError().GetMessage()));
		FEdGraphPinType Type;
		Log.Clear();
		EXPECT_FALSE(Mapping.ResolvePropType(TVexelPropTypeId(Case.Id), Type));
		EXPECT_TRUE(Log.Contains(Case.OfMapping)) << Log.ToText();
	}
}

TEST_F(FBlueprintIdsTest, InterfaceWithoutItsClassAndMapWithoutAValueHaveNoId)
{
	FEdGraphPinType Type;
	Type.PinCategory = UEdGraphSchema_K2::PC_Interface;
	EXPECT_TRUE(Mapping.MakePropTypeReference(Type, nullptr).IsEmpty());
	EXPECT_TRUE(Log.Contains("Pin type 'interface' is missing subcategory object!"));
	Type.PinCategory = UEdGraphSchema_K2::PC_String;
	Type.ContainerType = EPinContainerType::Map;
	EXPECT_TRUE(Mapping.MakePropTypeReference(Type, nullptr).IsEmpty());
	EXPECT_TRUE(Log.Contains("Map type 'string' is missing value type!"));
}

TEST_F(FBlueprintIdsTest, DescriptionIsTheSentenceOfTheMostSpecificSegments)
{
	const auto Describe = [](const TCHAR* Id)
	{ return ToStd(FVexelNodeTypeDescription::MakeSentence(TVexelNodeTypeId(Id), TEXT("Odd"))); };
	EXPECT_EQ("It calls KismetSystemLibrary.PrintString.", Describe(TEXT("call.KismetSystemLibrary.PrintString")));
	EXPECT_EQ("It spawns an actor of type BP_Door in the world.", Describe(TEXT("call.spawn_actor.BP_Door")));
	EXPECT_EQ("It gets the graph/function local variable Health.", Describe(TEXT("var.local.get.Health")));
	EXPECT_EQ(
		"It performs addition operation on numbers, integers, floats, vectors. This is the preferred way of adding numbers and vectors.",
		Describe(TEXT("call.op.Add")));
	EXPECT_EQ("This is a blueprint node called Odd.", Describe(TEXT("quantum.flip")));
}
}
