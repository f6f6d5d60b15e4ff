#include "EdGraphSchema_K2.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_FunctionEntry.h"
#include "Lum/Compound/LumGraphCompound.h"
#include "Lum/Compound/LumMapEntryCompound.h"
#include "Lum/Compound/LumNodeCompound.h"
#include "Lum/Compound/LumSingleValueCompound.h"
#include "Lum/Compound/LumUnrealObjectCompound.h"
#include "Lum/Compound/LumUnrealStructCompound.h"
#include "Lum/LumErrors.h"
#include "Lum/LumHelper.h"
#include "Lum/LumJsonPropertyCollector.h"
#include "Lum/LumVariable.h"
#include "Lum/Property/LumUnrealContainerProperty.h"
#include "Lum/Property/LumUnrealLeafProperty.h"
#include "Lum/Property/LumUnrealObjectProperty.h"
#include "Lum/Property/LumUnrealStructProperty.h"
#include "Lum/Value/LumObjectOwner.h"
#include "LumTestTypes.h"
#include "LumValueFixture.h"
#include "ObjectEditFixture.h"
#include "Tools/Blueprint/VexelObjectEditRequest.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;

template <typename T>
std::string TextOf(const TVexelExpected<T>& Result)
{
	return Result.HasError() ? ToStd(Result.GetError().ToChainString()) : "no error";
}

/** Takes a number of things, and then does what the test says. */
class FStoppingCollector : public ILumPropertyCollector
{
public:
	using FStop = TFunction<TVexelExpected<void>()>;

	FStoppingCollector(
		int32 InNumTaken, FStop InStop = []
		{ return TVexelExpected<void>(VEXEL_ERROR(FLumError_Traverse, "stop")); })
		: NumLeft(InNumTaken)
		, Stop(MoveTemp(InStop))
	{
	}

	virtual TVexelExpected<void> Property(const TSharedRef<ILumProperty>&) override { return Take(); }
	virtual TVexelExpected<void> Variable(const TSharedRef<ILumVariable>&) override { return Take(); }

private:
	TVexelExpected<void> Take() { return NumLeft-- > 0 ? TVexelExpected<void>() : Stop(); }

	int32 NumLeft;
	FStop Stop;
};

/** What is said of a failure at each thing that a compound has, in its order. */
std::vector<std::string> StopsOf(const ILumCompound& Compound)
{
	std::vector<std::string> Stops;
	const std::string Begin = "Traverse failed: stop, ";
	const std::string End = ", while iterating properties";
	for (int32 NumTaken = 0;; ++NumTaken)
	{
		FStoppingCollector Collector(NumTaken);
		const std::string Text = TextOf(Compound.IterateProperties(Collector));
		if (Text == "no error")
		{
			return Stops;
		}
		EXPECT_TRUE(Text.starts_with(Begin) && Text.ends_with(End)) << Text;
		Stops.push_back(Text.substr(Begin.size(), Text.size() - Begin.size() - End.size()));
	}
}

class FLumBlueprintContextTest : public FObjectEditTest
{
};

TEST_F(FLumBlueprintContextTest, AFailureSaysAtWhatOfTheBlueprintItWas)
{
	const std::string Name = ToStd(Blueprint->GetName());
	EXPECT_THAT(StopsOf(*ILumCompound::Create(*Blueprint)),
		ElementsAre("while processing member variable 'Health' in blueprint '" + Name + "'",
			"while processing member variable 'OnHurt' in blueprint '" + Name + "'",
			"while processing class default object in blueprint '" + Name + "'"));
	EXPECT_THAT(StopsOf(FLumGraphCompound(*FindGraph(TEXT("Heal")))),
		ElementsAre("while registering editable graph name property", "while processing function input 'Amount' in graph 'Heal'",
			"while processing function output 'Total' in graph 'Heal'", "while processing local variable 'Left' in graph 'Heal'"));
	UEdGraphNode* const Event = FindNodeOfClass<UK2Node_CustomEvent>(EventGraph);
	const std::string OnEvent = " on node '" + ToStd(Event->GetName()) + "'";
	EXPECT_THAT(StopsOf(*FLumNodeCompound::Create(*Event)),
		ElementsAre("while registering editable node name property", "while iterating pin 'OutputDelegate'" + OnEvent,
			"while iterating pin 'then'" + OnEvent, "while iterating pin 'Damage'" + OnEvent, "while iterating pin 'Damage'" + OnEvent));
}

TEST_F(FLumBlueprintContextTest, WhatIsGoneOrIsNoneIsAnError)
{
	UEdGraph* const Graph = NewObject<UEdGraph>(GetTransientPackage());
	FLumGraphCompound NoSchema(*Graph);
	EXPECT_EQ("Read Error: Graph object has no schema", TextOf(NoSchema.GetCompoundType()));
	UK2Node_CustomEvent* const Event = NewObject<UK2Node_CustomEvent>(GetTransientPackage());
	FLumEditablePinsNodeCompound OfEvent(*Event);
	UEdGraphNode* const Plain = NewObject<UEdGraphNode>(GetTransientPackage());
	EXPECT_EQ("Read Error: Node does not support editable pins", TextOf(FLumEditablePinsNodeCompound(*Plain).GetVariableScopes()));
	UBlueprint* const Lost = NewObject<UBlueprint>(GetTransientPackage());
	const TSharedRef<ILumCompound> OfLost = ILumCompound::Create(*Lost);
	for (UObject* const Object : {static_cast<UObject*>(Graph), static_cast<UObject*>(Event), static_cast<UObject*>(Lost)})
	{
		Object->MarkAsGarbage();
	}
	const FLumContext Context(Conversation->GetMapping());
	EXPECT_EQ("Read Error: Graph object is not valid", TextOf(NoSchema.JsonExportObject(Context)));
	EXPECT_EQ("Read Error: Node object is not valid", TextOf(OfEvent.JsonExportObject(Context)));
	EXPECT_EQ("Read Error: Blueprint object is not valid", TextOf(OfLost->JsonExportObject(Context)));
	EXPECT_EQ("Read Error: Blueprint object is not valid, while iterating properties",
		TextOf(OfLost->FindProperty(TVexelPropId(TEXT("$ClassDefaultObject")))));
}

TEST_F(FLumBlueprintContextTest, AnExportSaysWhereInTheBlueprintItFailed)
{
	UEdGraphNode* const Event = FindNodeOfClass<UK2Node_CustomEvent>(EventGraph);
	UEdGraphPin* const Pin = Event->CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, FindFirstObject<UScriptStruct>(TEXT("Vector")), TEXT("Where"));
	Pin->DefaultValue = TEXT("1,2");
	const std::string Node = "'" + ToStd(Event->GetName()) + "'";
	EXPECT_EQ("Export failed: Failed to parse vector: 1,2, while exporting pin 'Where', while collecting a property, while iterating pin 'Where' on node " +
			Node + ", while exporting properties and variables to JSON, while exporting node " + Node +
			" in graph 'EventGraph', while processing graph 'EventGraph'",
		TextOf(ILumCompound::Create(*Blueprint)->JsonExportObject(FLumContext(Conversation->GetMapping()))));
	Event->RemovePin(Pin);
}

TEST_F(FLumBlueprintContextTest, AVariableOfABlueprintWithoutAClassHasNoOwner)
{
	UBlueprint* const Bare = NewObject<UBlueprint>(GetTransientPackage());
	FBPVariableDescription Description;
	Description.VarName = TEXT("A");
	Bare->NewVariables.Add(Description);
	const TSharedPtr<ILumVariable> Variable =
		ILumCompound::Create(*Bare)->FindVariable(LumScope::Member(), TVexelPropId(TEXT("A"))).GetValue();
	ASSERT_TRUE(Variable.IsValid());
	EXPECT_EQ("Read Error: Property does not have a valid owner struct!, while getting owner type for property 'A', while exporting property to JSON",
		TextOf(Variable->JsonExportPropertyObject(FLumContext(Conversation->GetMapping()))));
}

TEST_F(FLumBlueprintContextTest, GraphsAreMadeAndRemovedInEntriesOfTheirOwn)
{
	EXPECT_EQ("Write Error: Only function graphs are supported", TextOf(FLumHelper::AddGraphToBlueprint(*Blueprint, TEXT("A"), GT_Macro)));
	UEdGraph* const Stray = NewObject<UEdGraph>(GetTransientPackage());
	EXPECT_EQ("Write Error: Graph does not belong to a valid blueprint", TextOf(FLumHelper::RemoveGraphFromBlueprint(*Stray)));
	EXPECT_EQ(0, NumUndos());
	const FString Before = TakeText();
	EXPECT_EQ("no error", TextOf(FLumHelper::AddGraphToBlueprint(*Blueprint, TEXT("A"), GT_Function)));
	EXPECT_EQ("(Vexel) Add Function Graph", TopTitle());
	EXPECT_EQ("no error", TextOf(FLumHelper::RemoveGraphFromBlueprint(*FindGraph(TEXT("Heal")))));
	EXPECT_EQ("(Vexel) Remove Function Graph", TopTitle());
	EXPECT_EQ(2, NumUndos());
	UndoAll();
	EXPECT_EQ("", ToStd(DescribeDifference(Before, TakeText())));
}

/** A variable of which one question fails. */
class FBrokenVariable : public ILumVariable
{
public:
	enum class EPart
	{
		Nothing,
		Id,
		OwnerType,
		ValueType,
		Value,
		Category,
		Flags,
		Scope
	};

	explicit FBrokenVariable(EPart InBroken)
		: Broken(InBroken)
	{
	}

	virtual TVexelExpected<TVexelPropId> GetPropId() const override { return Answer(EPart::Id, TVexelPropId(TEXT("P"))); }
	virtual TVexelExpected<TVexelPropTypeId> GetOwnerTypeId() const override { return Answer(EPart::OwnerType, TVexelPropTypeId(TEXT("object.O"))); }
	virtual TVexelExpected<TVexelPropTypeId> GetValueTypeId() const override { return Answer(EPart::ValueType, TVexelPropTypeId(TEXT("int"))); }
	virtual TVexelExpected<EPropertyFlags> GetFlags() const override { return Answer(EPart::Flags, CPF_None); }
	virtual TVexelExpected<FString> GetCategory() const override { return Answer(EPart::Category, FString()); }
	virtual TVexelExpected<TVexelVarScopeId> GetVarScopeId() const override { return Answer(EPart::Scope, LumScope::In()); }
	virtual TVexelExpected<TSharedRef<FJsonValue>> JsonExportValue(const FLumContext&) const override
	{
		return Answer(EPart::Value, StaticCastSharedRef<FJsonValue>(MakeShared<FJsonValueString>(TEXT("1"))));
	}

private:
	template <typename T>
	TVexelExpected<T> Answer(EPart Part, const T& Value) const
	{
		if (Part == Broken)
		{
			return VEXEL_ERROR(FLumError_Read, "broken");
		}
		return Value;
	}

	EPart Broken;
};

/** Has one variable, which it also calls a property. */
class FBrokenCompound : public ILumCompound
{
public:
	explicit FBrokenCompound(FBrokenVariable::EPart InBroken)
		: Broken(InBroken)
		, Thing(MakeShared<FBrokenVariable>(InBroken))
	{
	}

	virtual TVexelExpected<TVexelPropTypeId> GetCompoundType() const override { return TVexelPropTypeId(TEXT("object.O")); }
	virtual TVexelExpected<TArray<TVexelVarScopeId>> GetVariableScopes() const override
	{
		if (Broken == FBrokenVariable::EPart::Scope)
		{
			return VEXEL_ERROR(FLumError_Read, "broken");
		}
		return TArray<TVexelVarScopeId>{LumScope::In()};
	}

protected:
	virtual TVexelExpected<void> Iterate(ILumPropertyCollector& Collector) const override
	{
		VEXEL_TRY_VOID(Collector.Property(Thing));
		return Collector.Variable(Thing);
	}

private:
	FBrokenVariable::EPart Broken;
	TSharedRef<FBrokenVariable> Thing;
};

class FLumContextTest : public FLumValueTest
{
protected:
	FLumValuePlaceRef MakePlace(const TCHAR* Member) const
	{
		return MakeShared<FLumValuePlace>(
			MakeShared<FLumObjectOwner>(*Thing), FLumValuePlace::EPart::Member, *ULumThing::StaticClass()->FindPropertyByName(Member));
	}
};

TEST_F(FLumContextTest, AnExportSaysWhichQuestionFailed)
{
	using EPart = FBrokenVariable::EPart;
	const std::pair<EPart, std::string> Cases[] = {
		{EPart::OwnerType, "while getting owner type for property 'P'"},
		{EPart::ValueType, "while getting type for property 'P'"},
		{EPart::Value, "while exporting value for property 'P'"},
		{EPart::Category, "while getting category for property 'P'"},
		{EPart::Flags, "while getting flags for property 'P'"},
	};
	for (const auto& [Part, While] : Cases)
	{
		const std::string Expected = "Read Error: broken, " + While + ", while exporting property to JSON";
		FLumJsonPropertyCollector Collector(Context);
		EXPECT_EQ(Expected + ", while collecting a property", TextOf(Collector.Property(MakeShared<FBrokenVariable>(Part))));
		EXPECT_EQ(Expected + ", while collecting a variable", TextOf(Collector.Variable(MakeShared<FBrokenVariable>(Part))));
		EXPECT_EQ(Expected + ", while collecting a property, while iterating properties, while iterating properties for JSON export",
			TextOf(FBrokenCompound(Part).JsonExportObject(Context)));
	}
	EXPECT_EQ("no error", TextOf(FBrokenCompound(EPart::Nothing).JsonExportObject(Context)));
}

TEST_F(FLumContextTest, ADescriptorSaysWhichQuestionFailed)
{
	using EPart = FBrokenVariable::EPart;
	const std::pair<EPart, std::string> Cases[] = {
		{EPart::Id, "while getting variable ID"},
		{EPart::Scope, "while getting variable scope ID"},
		{EPart::ValueType, "while getting variable type ID"},
		{EPart::Category, "while getting variable category"},
	};
	for (const auto& [Part, While] : Cases)
	{
		EXPECT_EQ("Read Error: broken, " + While, TextOf(FBrokenVariable(Part).GetVariableDescriptor()));
	}
	const FLumVarDesc Desc = FBrokenVariable(EPart::Nothing).GetVariableDescriptor().GetValue();
	EXPECT_EQ(LumScope::In(), Desc.ScopeId);
	EXPECT_EQ("P", ToStd(Desc.PropId.ToString()));
}

TEST_F(FLumContextTest, AnOperationSaysWhatItWasDoingWhenItsTargetFailed)
{
	using EPart = FBrokenVariable::EPart;
	const auto Run = [](EPart Broken, EVexelEditOperation Type)
	{
		const FEditRequestOperationOnVar Operation{Type, TEXT("in"), TEXT("P"), Parse(R"({"type_id":"int"})")};
		return TextOf(Operation.Execute(MakeShared<FBrokenCompound>(Broken)));
	};
	EXPECT_EQ("Read Error: broken, while retrieving supported variable scopes", Run(EPart::Scope, EVexelEditOperation::AddVariable));
	EXPECT_EQ("Read Error: broken, while iterating properties, while checking for existing variable", Run(EPart::Id, EVexelEditOperation::AddPin));
	EXPECT_EQ("Write Error: Variable 'P' in scope 'in' already exists", Run(EPart::Nothing, EVexelEditOperation::AddVariable));
	EXPECT_EQ("Read Error: broken, while iterating properties, while locating variable to remove", Run(EPart::Id, EVexelEditOperation::RemovePin));
	EXPECT_EQ("Write Error: Variable 'P' cannot be removed: the target holds no variables", Run(EPart::Nothing, EVexelEditOperation::RemoveVariable));
	EXPECT_EQ("Read Error: broken, while iterating properties, while finding variable 'P' with scope 'in' in target",
		Run(EPart::Id, EVexelEditOperation::EditPin));
	EXPECT_EQ("Write Error: Variable 'P' with scope 'in' is not editable", Run(EPart::Nothing, EVexelEditOperation::EditVariable));
	const FEditRequestOperationOnProp OnProp{EVexelEditOperation::Update, TEXT("in"), TEXT("P"), INDEX_NONE, Parse("\"1\"")};
	EXPECT_EQ("Read Error: broken, while iterating properties, while finding variable 'P' with scope 'in' in target",
		TextOf(OnProp.Execute(MakeShared<FBrokenCompound>(EPart::Id), Context)));
}

TEST_F(FLumContextTest, AnOperationOnElementsSaysWhyItFailed)
{
	const TSharedRef<ILumCompound> Target = MakeShared<FLumUnrealObjectCompound>(*Thing);
	Thing->Numbers = {1, 2};
	const auto Run = [&](EVexelEditOperation Type, const TCHAR* Path, int32 Index, const char* Json)
	{
		return TextOf(FEditRequestOperationOnProp{Type, FString(), Path, Index, Parse(Json)}.Execute(Target, Context));
	};
	EXPECT_EQ("Write Error: Failed to insert into property 'Numbers' at index 3: Import failed: Array index out of range, while inserting array "
			  "element at index 3",
		Run(EVexelEditOperation::Insert, TEXT("Numbers"), 3, "\"7\""));
	EXPECT_EQ("Write Error: Failed to remove from property 'Numbers' at index -5: Import failed: Array index out of range",
		Run(EVexelEditOperation::Remove, TEXT("Numbers"), -5, "\"7\""));
	EXPECT_EQ("Traverse failed: Property 'Part' has no valid compound", Run(EVexelEditOperation::Insert, TEXT("Part"), 0, "\"7\""));
	EXPECT_EQ("Traverse failed: Property 'Struct' is not a collection", Run(EVexelEditOperation::Insert, TEXT("Struct"), 0, "\"7\""));
	EXPECT_EQ("Write Error: Property 'Part' is not a compound/collection and cannot remove by index",
		Run(EVexelEditOperation::Remove, TEXT("Part"), 0, "\"7\""));
	EXPECT_EQ((TArray<int32>{1, 2}), Thing->Numbers);
	EXPECT_EQ("no error", Run(EVexelEditOperation::Insert, TEXT("Numbers"), 2, "\"7\""));
	EXPECT_EQ("no error", Run(EVexelEditOperation::Remove, TEXT("Numbers"), 0, "\"7\""));
	EXPECT_EQ((TArray<int32>{2, 7}), Thing->Numbers);
}

TEST_F(FLumContextTest, AFailureSaysAtWhatOfAValueItWas)
{
	Thing->Counts.Add(TEXT("A"), 1);
	EXPECT_THAT(StopsOf(*Compound(TEXT("Counts.0"))), ElementsAre("while processing map entry key", "while processing map entry value"));
	EXPECT_THAT(StopsOf(*Compound(TEXT("Vector"))),
		ElementsAre("while processing property 'X'", "while processing property 'Y'", "while processing property 'Z'"));
	Thing->Numbers = {4, 5};
	EXPECT_EQ(2, FLumUnrealArrayProperty(MakePlace(TEXT("Numbers"))).GetNum().GetValue());
	EXPECT_THAT(StopsOf(*Compound(TEXT("Numbers"))), ElementsAre("while collecting item at index 0", "while collecting item at index 1"));
	const FLumSingleValueCompound Single(Resolve(TEXT("Int32")).GetValue());
	EXPECT_THAT(StopsOf(Single), ElementsAre("while processing single value property"));
	EXPECT_EQ("int32", Utf8(Single.GetCompoundType().GetValue().ToString()));
	const TSharedPtr<ILumProperty> Value = Single.FindProperty(TVexelPropId(TEXT("value"))).GetValue();
	ASSERT_TRUE(Value.IsValid());
	EXPECT_EQ("ok", Say(Value->JsonImportValue(Context, Parse("\"8\"").ToSharedRef())));
	EXPECT_EQ(8, Thing->Int32);
}

TEST_F(FLumContextTest, WhoTakesThePartsMayDoAwayWithTheWhole)
{
	Thing->Inners.SetNum(1);
	FStoppingCollector Emptying(0, [this]
		{ Thing->Inners.Empty(); return TVexelExpected<void>(); });
	EXPECT_EQ("Read Error: Struct data is not valid, while creating sub-property for 'Label', while iterating properties",
		TextOf(Compound(TEXT("Inners.0"))->IterateProperties(Emptying)));
	FStoppingCollector Killing(0, [this]
		{ Thing->MarkAsGarbage(); return TVexelExpected<void>(); });
	EXPECT_EQ("Read Error: Invalid object, while creating sub-property for 'Int16', while iterating properties",
		TextOf(FLumUnrealObjectCompound(*Thing).IterateProperties(Killing)));
}

TEST_F(FLumContextTest, AValueThatIsGoneAnswersNoQuestion)
{
	const TSharedRef<FLumUnrealLeafProperty> Number = MakeShared<FLumUnrealLeafProperty>(MakePlace(TEXT("Int32")));
	const TSharedRef<FLumUnrealObjectReferenceProperty> Reference = MakeShared<FLumUnrealObjectReferenceProperty>(MakePlace(TEXT("Object")));
	const TSharedRef<FLumUnrealObjectInstanceProperty> Part = MakeShared<FLumUnrealObjectInstanceProperty>(MakePlace(TEXT("Part")));
	const TSharedRef<FLumUnrealStructProperty> Vector = MakeShared<FLumUnrealStructProperty>(MakePlace(TEXT("Vector")));
	const FLumValuePlaceRef Place = MakePlace(TEXT("Int32"));
	const TSharedRef<FJsonValue> None = MakeShared<FJsonValueString>(TEXT("ref|None"));
	const std::string Name = Utf8(Thing->GetName());
	Thing->Numbers = {1};
	const FLumValuePlace Element(
		MakePlace(TEXT("Numbers")), FLumValuePlace::EPart::ArrayElement, *CastFieldChecked<FArrayProperty>(&MakePlace(TEXT("Numbers"))->GetProperty())->Inner, 1);
	constexpr int32 Seven = 7;
	EXPECT_EQ("Import failed: Failed to resolve data for property 'Numbers' on object '" + Name + "'", TextOf(Element.Assign(&Seven)));

	Thing->MarkAsGarbage();
	EXPECT_EQ("Read Error: Property is not valid!, while getting property id", TextOf(Number->GetPropId()));
	EXPECT_EQ("Read Error: Property is not valid!, while getting value type id", TextOf(Number->GetValueTypeId()));
	EXPECT_EQ("Read Error: Property is not valid!, while getting property flags", TextOf(Number->GetFlags()));
	EXPECT_EQ("Read Error: Property is not valid!, while getting property category", TextOf(Number->GetCategory()));
	EXPECT_EQ("Read Error: Property is not valid!", TextOf(Number->JsonExportValue(Context)));
	EXPECT_EQ("Export failed: Property data is null", TextOf(Reference->JsonExportValue(Context)));
	EXPECT_EQ("Import failed: Property data is null", TextOf(Reference->JsonImportValue(Context, None)));
	EXPECT_EQ("Read Error: Property data is null", TextOf(Part->GetCompound()));
	EXPECT_EQ("Read Error: Struct data is not valid!", TextOf(Vector->GetCompound()));
	EXPECT_EQ("Import failed: Invalid object", TextOf(Place->Assign(&Seven)));
}

TEST_F(FLumContextTest, APropertyOfAnotherKindIsAnError)
{
	const TSharedRef<FLumUnrealObjectReferenceProperty> Reference = MakeShared<FLumUnrealObjectReferenceProperty>(MakePlace(TEXT("Int32")));
	EXPECT_EQ("Export failed: Property is not an object property", TextOf(Reference->JsonExportValue(Context)));
	EXPECT_EQ("Import failed: Property is not an object property",
		TextOf(Reference->JsonImportValue(Context, MakeShared<FJsonValueString>(TEXT("ref|None")))));
	EXPECT_EQ("Read Error: Property is not an object property",
		TextOf(MakeShared<FLumUnrealObjectInstanceProperty>(MakePlace(TEXT("Int32")))->GetCompound()));
	EXPECT_EQ("Read Error: Struct property is not valid!", TextOf(MakeShared<FLumUnrealStructProperty>(MakePlace(TEXT("Int32")))->GetCompound()));
	const FIntProperty Loose(FFieldVariant(), TEXT("Loose"));
	EXPECT_EQ("Read Error: Property does not have a valid owner struct!, while getting owner type id",
		TextOf(FLumUnrealBaseProperty::ReadOwnerTypeIdOf(Loose)));
	const FLumUnrealStructCompound NoStruct(nullptr, MakePlace(TEXT("Vector")));
	EXPECT_EQ("Read Error: Struct type is not valid, while iterating properties", TextOf(NoStruct.FindProperty(TVexelPropId(TEXT("X")))));
}

TEST_F(FLumContextTest, ATypeThatNoIdNamesIsAnError)
{
	const auto TypeOf = [](const TCHAR* Name)
	{
		return TextOf(FLumHelper::GetPropertyTypeId(*ULumThing::StaticClass()->FindPropertyByName(Name)));
	};
	EXPECT_EQ("Read Error: Map properties with weak pointer values are not supported!", TypeOf(TEXT("WeakByName")));
	EXPECT_EQ("Read Error: Failed to convert property to pin type!", TypeOf(TEXT("Maybe")));
	EXPECT_EQ("Read Error: Failed to get map value property category info!: Read Error: Failed to convert property to pin type!",
		TypeOf(TEXT("MaybeByName")));
	for (const TCHAR* const Name : {TEXT("WeakByName"), TEXT("Maybe"), TEXT("MaybeByName")})
	{
		EXPECT_TRUE(Resolve(Name).HasError()) << Utf8(Name);
	}
}
}
