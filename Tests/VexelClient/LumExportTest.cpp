#include "Components/SceneComponent.h"
#include "EdGraphSchema_K2.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "K2Node_CallFunction.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Lum/Compound/LumBlueprintCompound.h"
#include "Lum/LumContext.h"
#include "Lum/LumHelper.h"
#include "Lum/LumProperty.h"
#include "LumTestBlueprint.h"
#include "Policies/CondensedJsonPrintPolicy.h"
#include "Serialization/JsonSerializer.h"
#include "Serialization/JsonWriter.h"

namespace
{
FEdGraphPinType MakeType(
	FName Category, FName SubCategory = NAME_None, UObject* Object = nullptr, EPinContainerType Container = EPinContainerType::None)
{
	return FEdGraphPinType(Category, SubCategory, Object, Container, false, FEdGraphTerminalType());
}

FString ToText(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	const auto Writer = TJsonWriterFactory<TCHAR, TCondensedJsonPrintPolicy<TCHAR>>::Create(&Text);
	FJsonSerializer::Serialize(Object, Writer);
	return Text;
}

class FLumExportTest : public FLumTest
{
protected:
	TSharedRef<FJsonObject> Export()
	{
		TVexelExpected<TSharedRef<FJsonObject>> Object = FLumBlueprintCompound(*Blueprint).JsonExportObject(Context);
		checkf(Object.HasValue(), TEXT("%s"), *Object.GetError().ToString());
		return Object.GetValue();
	}

	/** The object of that id in an array of the exported object; null without one. */
	static TSharedPtr<FJsonObject> Find(const TSharedPtr<FJsonObject>& Object, const TCHAR* Array, const TCHAR* Id)
	{
		const TArray<TSharedPtr<FJsonValue>>* Values = nullptr;
		Object->TryGetArrayField(Array, Values);
		for (int32 Index = 0; Values && Index < Values->Num(); ++Index)
		{
			if ((*Values)[Index]->AsObject()->GetStringField(TEXT("id")) == Id)
			{
				return (*Values)[Index]->AsObject();
			}
		}
		return nullptr;
	}

	/** The default value of a new member variable of the type, as the export has it. */
	std::string ExportedValue(const TCHAR* Name, const FEdGraphPinType& Type, const TCHAR* Default)
	{
		FBlueprintEditorUtils::AddMemberVariable(Blueprint, Name, Type, Default);
		FKismetEditorUtilities::CompileBlueprint(Blueprint);
		const TSharedPtr<FJsonObject> Variable = Find(Export(), TEXT("variables"), Name);
		return Variable ? ToStd(Variable->GetStringField(TEXT("value"))) : "no such variable";
	}

	FLumContext Context{MakeShared<FVexelBlueprintMapping>()};
};

TEST_F(FLumExportTest, BlueprintSaysWhatItIs)
{
	const TSharedRef<FJsonObject> Object = Export();
	EXPECT_EQ("object.Blueprint", ToStd(Object->GetStringField(TEXT("type"))));
	EXPECT_EQ(ToStd(Blueprint->GetPathName()), ToStd(Object->GetStringField(TEXT("id"))));
	EXPECT_EQ("normal", ToStd(Object->GetStringField(TEXT("bp_type"))));
	const TArray<TSharedPtr<FJsonValue>>& Chain = Object->GetArrayField(TEXT("parent_chain"));
	ASSERT_EQ(2, Chain.Num());
	EXPECT_EQ("Actor", ToStd(Chain[0]->AsString()));
	EXPECT_EQ("Object", ToStd(Chain[1]->AsString()));
	EXPECT_FALSE(Object->HasField(TEXT("variables")));
	const TSharedPtr<FJsonObject> Graph = Find(Object, TEXT("graphs"), TEXT("EventGraph"));
	ASSERT_TRUE(Graph.IsValid());
	EXPECT_EQ("ubergraph", ToStd(Graph->GetStringField(TEXT("graph_type"))));
}

TEST_F(FLumExportTest, NodesCarryTheirPinsAndLinks)
{
	UEdGraphNode& Event = Place<UK2Node_CustomEvent>([](UK2Node_CustomEvent& Node)
		{ Node.CustomFunctionName = TEXT("Knock"); });
	UEdGraphNode& Print = Place<UK2Node_CallFunction>([](UK2Node_CallFunction& Node)
		{ Node.FunctionReference.SetExternalMember(TEXT("PrintString"), FindFirstObject<UClass>(TEXT("KismetSystemLibrary"))); });
	Event.FindPin(UEdGraphSchema_K2::PN_Then)->MakeLinkTo(Print.FindPin(UEdGraphSchema_K2::PN_Execute));
	Print.FindPin(TEXT("InString"))->DefaultValue = TEXT("Who is there?");

	const TSharedPtr<FJsonObject> Graph = Find(Export(), TEXT("graphs"), TEXT("EventGraph"));
	const TSharedPtr<FJsonObject> PrintObject = Find(Graph, TEXT("nodes"), TEXT("PrintString_0"));
	ASSERT_TRUE(PrintObject.IsValid()) << ToStd(ToText(Graph.ToSharedRef()));
	EXPECT_EQ("call.KismetSystemLibrary.PrintString", ToStd(PrintObject->GetStringField(TEXT("node_type"))));
	EXPECT_EQ(ToStd(Print.NodeGuid.ToString(EGuidFormats::Digits)), ToStd(PrintObject->GetStringField(TEXT("guid"))));

	const UEdGraphPin& InString = *Print.FindPin(TEXT("InString"));
	EXPECT_EQ("{\"id\":\"InString\",\"dir\":\"input\",\"guid\":\"" + ToStd(InString.PinId.ToString(EGuidFormats::Digits)) +
			"\",\"name\":\"In String\",\"type\":\"string\",\"value\":\"Who is there?\"}",
		ToStd(ToText(Find(PrintObject, TEXT("pins"), TEXT("InString")).ToSharedRef())));
	const TSharedPtr<FJsonObject> Execute = Find(PrintObject, TEXT("pins"), TEXT("execute"));
	ASSERT_TRUE(Execute.IsValid());
	const TArray<TSharedPtr<FJsonValue>>& Links = Execute->GetArrayField(TEXT("connections"));
	ASSERT_EQ(1, Links.Num());
	EXPECT_EQ("then", ToStd(Links[0]->AsObject()->GetStringField(TEXT("pin"))));
	EXPECT_FALSE(Find(PrintObject, TEXT("pins"), TEXT("WorldContextObject")).IsValid());

	const TSharedPtr<FJsonObject> EventObject = Find(Graph, TEXT("nodes"), *Links[0]->AsObject()->GetStringField(TEXT("node")));
	ASSERT_TRUE(EventObject.IsValid());
	EXPECT_EQ("event.custom", ToStd(EventObject->GetStringField(TEXT("node_type"))));
	EXPECT_EQ("Knock", ToStd(Find(EventObject, TEXT("properties"), TEXT("name"))->GetStringField(TEXT("value"))));
}

TEST_F(FLumExportTest, VariableCarriesTypeValueAndScope)
{
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), MakeType(UEdGraphSchema_K2::PC_Int), TEXT("75"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const TSharedPtr<FJsonObject> Health = Find(Export(), TEXT("variables"), TEXT("Health"));
	ASSERT_TRUE(Health.IsValid());
	EXPECT_EQ("int", ToStd(Health->GetStringField(TEXT("type"))));
	EXPECT_EQ("75", ToStd(Health->GetStringField(TEXT("value"))));
	EXPECT_EQ("object." + ToStd(Blueprint->GetName()), ToStd(Health->GetStringField(TEXT("declared_in"))));
	EXPECT_EQ("member", ToStd(Health->GetStringField(TEXT("scope"))));
	TArray<FString> Keys;
	Health->Values.GetKeys(Keys);
	EXPECT_EQ(FString(TEXT("id")), Keys[0]);
	EXPECT_EQ(FString(TEXT("scope")), Keys.Last());
}

TEST_F(FLumExportTest, ValuesAreTheEnginesText)
{
	EXPECT_EQ("True", ExportedValue(TEXT("bOpen"), MakeType(UEdGraphSchema_K2::PC_Boolean), TEXT("true")));
	EXPECT_EQ("Hello", ExportedValue(TEXT("Greeting"), MakeType(UEdGraphSchema_K2::PC_String), TEXT("Hello")));
	EXPECT_EQ("1.500000", ExportedValue(TEXT("Speed"), MakeType(UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double), TEXT("1.500000")));
	EXPECT_EQ("ref|None", ExportedValue(TEXT("Target"), MakeType(UEdGraphSchema_K2::PC_Object, NAME_None, UObject::StaticClass()), TEXT("")));
	EXPECT_EQ("ref|/Script/Engine.Actor",
		ExportedValue(
			TEXT("Kind"), MakeType(UEdGraphSchema_K2::PC_Class, NAME_None, UObject::StaticClass()), TEXT("/Script/Engine.Actor")));
}

TEST_F(FLumExportTest, ElementsAndFieldsAreReachedByPath)
{
	UScriptStruct* const Vector = FindFirstObject<UScriptStruct>(TEXT("Vector"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Stops"),
		MakeType(UEdGraphSchema_K2::PC_Struct, NAME_None, Vector, EPinContainerType::Array), TEXT("((X=1,Y=2,Z=3),(X=4,Y=5,Z=6))"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const TVexelExpected<TSharedRef<ILumProperty>> Y =
		FLumHelper::CompoundPathResolve(MakeShared<FLumBlueprintCompound>(*Blueprint), TEXT("$ClassDefaultObject.Stops.1.Y"));
	ASSERT_TRUE(Y.HasValue()) << ToStd(Y.GetError().ToString());
	EXPECT_EQ("5.000000", ToStd(Y.GetValue()->JsonExportValue(Context).GetValue()->AsString()));
	EXPECT_EQ("struct.Vector", ToStd(Y.GetValue()->GetOwnerTypeId().GetValue().ToString()));
}

TEST_F(FLumExportTest, DefaultObjectShowsOnlyWhatDiffersFromItsParent)
{
	const auto GetDefaultObject = [this]
	{
		return Find(Export(), TEXT("properties"), TEXT("$ClassDefaultObject"))->GetObjectField(TEXT("value"));
	};
	// The component that every new Actor Blueprint adds.
	ASSERT_EQ(1, GetDefaultObject()->GetArrayField(TEXT("properties")).Num()) << ToStd(ToText(GetDefaultObject().ToSharedRef()));
	EXPECT_TRUE(Find(GetDefaultObject(), TEXT("properties"), TEXT("DefaultSceneRoot")).IsValid());

	UObject* const DefaultObject = Blueprint->GeneratedClass->GetDefaultObject();
	const FFloatProperty* const Lifespan = CastField<FFloatProperty>(DefaultObject->GetClass()->FindPropertyByName(TEXT("InitialLifeSpan")));
	ASSERT_NE(nullptr, Lifespan);
	Lifespan->SetPropertyValue_InContainer(DefaultObject, 12.0f);
	const TSharedPtr<FJsonObject> Exported = Find(GetDefaultObject(), TEXT("properties"), TEXT("InitialLifeSpan"));
	ASSERT_TRUE(Exported.IsValid());
	EXPECT_EQ("12.000000", ToStd(Exported->GetStringField(TEXT("value"))));
	EXPECT_EQ("object.Actor", ToStd(Exported->GetStringField(TEXT("declared_in"))));
}

TEST_F(FLumExportTest, DefaultObjectShowsTheComponentsThatTheBlueprintAdds)
{
	USimpleConstructionScript& Script = *Blueprint->SimpleConstructionScript;
	USCS_Node* const Arm = Script.CreateNode(USceneComponent::StaticClass(), TEXT("Arm"));
	USCS_Node* const Base = Script.CreateNode(USceneComponent::StaticClass(), TEXT("Base"));
	Script.AddNode(Base);
	Base->AddChildNode(Arm);
	FBlueprintEditorUtils::AddMemberVariable(
		Blueprint, TEXT("Held"), MakeType(UEdGraphSchema_K2::PC_Object, NAME_None, USceneComponent::StaticClass()));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	CastChecked<USceneComponent>(Arm->ComponentTemplate)->SetRelativeLocation(FVector(1, 2, 3));

	const TSharedPtr<FJsonObject> Defaults =
		Find(Export(), TEXT("properties"), TEXT("$ClassDefaultObject"))->GetObjectField(TEXT("value"));
	const TSharedPtr<FJsonObject> ArmObject = Find(Defaults, TEXT("properties"), TEXT("Arm"));
	ASSERT_TRUE(ArmObject.IsValid()) << ToStd(ToText(Defaults.ToSharedRef()));
	EXPECT_EQ("object.SceneComponent", ToStd(ArmObject->GetStringField(TEXT("type"))));
	EXPECT_EQ("object." + ToStd(Blueprint->GetName()), ToStd(ArmObject->GetStringField(TEXT("declared_in"))));
	EXPECT_TRUE(ArmObject->GetBoolField(TEXT("instanced")));
	const TSharedPtr<FJsonObject> ArmValue = ArmObject->GetObjectField(TEXT("value"));
	ASSERT_EQ(1, ArmValue->GetArrayField(TEXT("properties")).Num()) << ToStd(ToText(ArmValue.ToSharedRef()));
	const TSharedPtr<FJsonObject> Location = Find(ArmValue, TEXT("properties"), TEXT("RelativeLocation"))->GetObjectField(TEXT("value"));
	EXPECT_EQ("2.000000", ToStd(Find(Location, TEXT("properties"), TEXT("Y"))->GetStringField(TEXT("value"))));
	EXPECT_EQ("{\"type\":\"object.SceneComponent\"}",
		ToStd(ToText(Find(Defaults, TEXT("properties"), TEXT("Base"))->GetObjectField(TEXT("value")).ToSharedRef())));
	// A variable that can hold a component is none.
	EXPECT_FALSE(Find(Defaults, TEXT("properties"), TEXT("Held")).IsValid());
}

TEST_F(FLumExportTest, FunctionHasItsInputsAndLocalVariables)
{
	UEdGraph* const Graph =
		FBlueprintEditorUtils::CreateNewGraph(Blueprint, TEXT("Heal"), UEdGraph::StaticClass(), UEdGraphSchema_K2::StaticClass());
	FBlueprintEditorUtils::AddFunctionGraph<UClass>(Blueprint, Graph, true, nullptr);
	TArray<UK2Node_FunctionEntry*> Entries;
	Graph->GetNodesOfClass(Entries);
	ASSERT_EQ(1, Entries.Num());
	ASSERT_NE(nullptr, Entries[0]->CreateUserDefinedPin(TEXT("Amount"), MakeType(UEdGraphSchema_K2::PC_Int), EGPD_Output));
	FBPVariableDescription Local;
	Local.VarName = TEXT("Before");
	Local.VarType = MakeType(UEdGraphSchema_K2::PC_Int);
	Local.DefaultValue = TEXT("7");
	Entries[0]->LocalVariables.Add(Local);
	FKismetEditorUtilities::CompileBlueprint(Blueprint);

	const TSharedPtr<FJsonObject> Heal = Find(Export(), TEXT("graphs"), TEXT("Heal"));
	ASSERT_TRUE(Heal.IsValid());
	EXPECT_EQ("function", ToStd(Heal->GetStringField(TEXT("graph_type"))));
	EXPECT_EQ("Heal", ToStd(Find(Heal, TEXT("properties"), TEXT("name"))->GetStringField(TEXT("value"))));
	const TSharedPtr<FJsonObject> Amount = Find(Heal, TEXT("variables"), TEXT("Amount"));
	ASSERT_TRUE(Amount.IsValid());
	EXPECT_EQ("in", ToStd(Amount->GetStringField(TEXT("scope"))));
	EXPECT_EQ("int", ToStd(Amount->GetStringField(TEXT("type"))));
	const TSharedPtr<FJsonObject> Before = Find(Heal, TEXT("variables"), TEXT("Before"));
	ASSERT_TRUE(Before.IsValid());
	EXPECT_EQ("local", ToStd(Before->GetStringField(TEXT("scope"))));
	EXPECT_EQ("7", ToStd(Before->GetStringField(TEXT("value"))));

	const TSharedPtr<FJsonObject> Entry = Find(Heal, TEXT("nodes"), *Context.GetMapping().MakeNodeReference(*Entries[0], false));
	ASSERT_TRUE(Entry.IsValid());
	EXPECT_FALSE(Find(Entry, TEXT("pins"), TEXT("then"))->GetBoolField(TEXT("is_editable_pin")));
	EXPECT_TRUE(Find(Entry, TEXT("pins"), TEXT("Amount"))->GetBoolField(TEXT("is_editable_pin")));
	EXPECT_TRUE(Find(Entry, TEXT("editable_pins"), TEXT("Amount")).IsValid());
}

TEST_F(FLumExportTest, MapEntriesHaveAKeyAndAValue)
{
	FEdGraphPinType Type = MakeType(UEdGraphSchema_K2::PC_String, NAME_None, nullptr, EPinContainerType::Map);
	Type.PinValueType = FEdGraphTerminalType::FromPinType(MakeType(UEdGraphSchema_K2::PC_Int));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Prices"), Type, TEXT("((\"Key\", 3),(\"Lamp\", 12))"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);

	const TSharedPtr<FJsonObject> Prices = Find(Export(), TEXT("variables"), TEXT("Prices"));
	ASSERT_TRUE(Prices.IsValid());
	EXPECT_EQ("map|string,int", ToStd(Prices->GetStringField(TEXT("type"))));
	const TSharedPtr<FJsonObject> Map = Prices->GetObjectField(TEXT("value"));
	EXPECT_EQ("map|string|int32", ToStd(Map->GetStringField(TEXT("type"))));
	const TSharedPtr<FJsonObject> Lamp = Find(Map, TEXT("properties"), TEXT("1"))->GetObjectField(TEXT("value"));
	EXPECT_EQ("Lamp", ToStd(Find(Lamp, TEXT("properties"), TEXT("key"))->GetStringField(TEXT("value"))));
	EXPECT_EQ("12", ToStd(Find(Lamp, TEXT("properties"), TEXT("value"))->GetStringField(TEXT("value"))));
}

TEST_F(FLumExportTest, StructInsideAStructIsText)
{
	UScriptStruct* const Transform = FindFirstObject<UScriptStruct>(TEXT("Transform"));
	ASSERT_NE(nullptr, Transform);
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Place"), MakeType(UEdGraphSchema_K2::PC_Struct, NAME_None, Transform));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	const TSharedPtr<FJsonObject> Value = Find(Export(), TEXT("variables"), TEXT("Place"))->GetObjectField(TEXT("value"));
	EXPECT_EQ("struct.Transform", ToStd(Value->GetStringField(TEXT("type"))));
	EXPECT_EQ(
		"(X=0.000000,Y=0.000000,Z=0.000000)", ToStd(Find(Value, TEXT("properties"), TEXT("Translation"))->GetStringField(TEXT("value"))));
}

TEST_F(FLumExportTest, PinDefaultsOfMathStructsAreTheirComponents)
{
	UEdGraphNode& Print = Place<UK2Node_CustomEvent>();
	const auto ExportDefault = [&Print](const TCHAR* Struct, const TCHAR* Default)
	{
		UEdGraphPin* const Pin = Print.CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, FindFirstObject<UScriptStruct>(Struct), TEXT("Value"));
		Pin->DefaultValue = Default;
		const TVexelExpected<TSharedRef<FJsonValue>> Value = FLumHelper::GetPinDefaultValueAsJsonValue(*Pin);
		const std::string Text = ToStd(Value.HasValue() ? Value.GetValue()->AsString() : Value.GetError().GetMessage());
		Print.RemovePin(Pin);
		return Text;
	};
	EXPECT_EQ("1.000000, 2.500000, -3.000000", ExportDefault(TEXT("Vector"), TEXT("1.000000,2.500000,-3.000000")));
	EXPECT_EQ("1.000000, 2.000000", ExportDefault(TEXT("Vector2D"), TEXT("(X=1.000,Y=2.000)")));
	EXPECT_EQ("10.000000, 20.000000, 30.000000", ExportDefault(TEXT("Rotator"), TEXT("10,20,30")));
	EXPECT_EQ("0.100000, 0.200000, 0.300000, 1.000000", ExportDefault(TEXT("LinearColor"), TEXT("(R=0.1,G=0.2,B=0.3,A=1.0)")));
	EXPECT_EQ("1, 2, 3, 255", ExportDefault(TEXT("Color"), TEXT("(B=3,G=2,R=1,A=255)")));
	EXPECT_EQ("Failed to parse vector: 1,2,three\nwhile exporting pin 'Value'", ExportDefault(TEXT("Vector"), TEXT("1,2,three")));
	EXPECT_EQ("Failed to parse vector: 1,2\nwhile exporting pin 'Value'", ExportDefault(TEXT("Vector"), TEXT("1,2")));
}
}
