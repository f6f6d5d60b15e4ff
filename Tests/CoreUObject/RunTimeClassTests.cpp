#include "ObjectTestSupport.h"
#include "PropertyTestTypes.h"

#include "UObject/StrongObjectPtr.h"

namespace
{
FString GetText(const UObject* Object, const TCHAR* Name)
{
	FString Text;
	FindFProperty<FProperty>(Object->GetClass(), Name)->ExportTextItem_InContainer(Text, Object, nullptr, nullptr, PPF_None);
	return Text;
}

bool SetText(UObject* Object, const TCHAR* Name, const TCHAR* Text)
{
	return FindFProperty<FProperty>(Object->GetClass(), Name)->ImportText_InContainer(Text, Object, Object, PPF_None) != nullptr;
}

UClass* MakeClassBelow(UPackage* Package, const TCHAR* Name, UClass* Super, const TArray<FPropertyDescription>& Members)
{
	UClass* const Class = NewObject<UClass>(Package, Name, RF_Public);
	Class->SetSuperStruct(Super);
	for (const FPropertyDescription& Member : Members)
	{
		Class->AddCppProperty(ConstructPropertyFromDescription(Class, Member));
	}
	Class->Bind();
	Class->StaticLink(true);
	return Class;
}
}

using FRunTimeClasses = FObjectTest;

TEST_F(FRunTimeClasses, AChildsDefaultsStartAsItsParentsAreThen)
{
	UClass* const Parent = MakeClassBelow(Package, TEXT("Parent_C"), UReflectedThing::StaticClass(),
		{Describe(EPropertyGenKind::Str, TEXT("Label")),
			DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Int), TEXT("Numbers"))});
	UReflectedThing* const ParentDefaults = Parent->GetDefaultObject<UReflectedThing>();
	ASSERT_TRUE(SetText(ParentDefaults, TEXT("Label"), TEXT("changed")) && SetText(ParentDefaults, TEXT("Numbers"), TEXT("(1,2)")));
	ParentDefaults->Number = 70;
	ParentDefaults->Part->Strength = 30;
	UClass* const Child = MakeClassBelow(Package, TEXT("Child_C"), Parent, {Describe(EPropertyGenKind::Name, TEXT("Own"))});
	const TStrongObjectPtr<UObject> Keep(Child);
	const UReflectedThing* const ChildDefaults = Child->GetDefaultObject<UReflectedThing>();
	EXPECT_EQ(GetText(ChildDefaults, TEXT("Label")), TEXT("changed"));
	EXPECT_EQ(GetText(ChildDefaults, TEXT("Numbers")), TEXT("(1,2)"));
	EXPECT_EQ(ChildDefaults->Number, 70);
	EXPECT_EQ(ChildDefaults->GetArchetype(), ParentDefaults);
	// The part is the child's own, with the parent's values, and follows the same line of archetypes.
	ASSERT_NE(ChildDefaults->Part, nullptr);
	EXPECT_EQ(ChildDefaults->Part->GetOuter(), ChildDefaults);
	EXPECT_EQ(ChildDefaults->Part->Strength, 30);
	EXPECT_EQ(ChildDefaults->Part->GetArchetype(), ParentDefaults->Part);
	const UReflectedThing* const Instance = NewObject<UReflectedThing>(Package, Child);
	EXPECT_EQ(Instance->Part->Strength, 30);
	EXPECT_EQ(Instance->Part->GetArchetype(), ChildDefaults->Part);
	EXPECT_EQ(GetText(Instance, TEXT("Numbers")), TEXT("(1,2)"));
	EXPECT_EQ(ParentDefaults->Part->GetArchetype(), GetDefault<UReflectedThing>()->Part);
}

TEST_F(FRunTimeClasses, MembersAreLaidOutBehindTheNativeClassWithoutOverlap)
{
	UClass* const Class = MakeClassBelow(Package, TEXT("Packed_C"), UReflectedThing::StaticClass(),
		{Describe(EPropertyGenKind::Byte, TEXT("A")), Describe(EPropertyGenKind::Double, TEXT("B")),
			Describe(EPropertyGenKind::Bool, TEXT("C")), Describe(EPropertyGenKind::Int16, TEXT("D")),
			Describe(EPropertyGenKind::Text, TEXT("E")),
			DescribeMap(Describe(EPropertyGenKind::Name), Describe(EPropertyGenKind::Str), TEXT("F"))});
	int32 End = static_cast<int32>(sizeof(UReflectedThing));
	for (const TCHAR* const Name : {TEXT("A"), TEXT("B"), TEXT("C"), TEXT("D"), TEXT("E"), TEXT("F")})
	{
		const FProperty* const Property = Class->FindPropertyByName(Name);
		EXPECT_GE(Property->GetOffset_ForInternal(), End);
		EXPECT_EQ(Property->GetOffset_ForInternal() % Property->GetMinAlignment(), 0);
		End = Property->GetOffset_ForInternal() + Property->GetSize();
	}
	EXPECT_GE(Class->GetStructureSize(), End);
	const TStrongObjectPtr<UObject> Instance(NewObject<UObject>(Package, Class));
	ASSERT_TRUE(SetText(Instance.Get(), TEXT("F"), TEXT("((\"k\", \"v\"))")) && SetText(Instance.Get(), TEXT("E"), TEXT("INVTEXT(\"t\")")));
	EXPECT_EQ(static_cast<UReflectedThing*>(Instance.Get())->Number, 7);
	UObject* const Copy = DuplicateObject<UObject>(Instance.Get(), Package);
	EXPECT_EQ(GetText(Copy, TEXT("F")), TEXT("((\"k\", \"v\"))"));
	EXPECT_EQ(GetText(Copy, TEXT("E")), TEXT("INVTEXT(\"t\")"));
}

TEST_F(FRunTimeClasses, AFunctionThatCannotRunLeavesDefaultsInItsOutputs)
{
	UClass* const Class = MakeClassBelow(Package, TEXT("Caller_C"), UObject::StaticClass(), {});
	const TStrongObjectPtr<UObject> Keep(Class);
	UFunction* const Function = NewObject<UFunction>(Class, TEXT("Ask"), RF_Public);
	const auto AddParameter = [Function](EPropertyGenKind Kind, const TCHAR* Name, uint64 Flags)
	{
		FPropertyDescription Description = Describe(Kind, Name);
		Description.PropertyFlags = static_cast<EPropertyFlags>(CPF_Parm | Flags);
		Function->AddCppProperty(ConstructPropertyFromDescription(Function, Description));
	};
	AddParameter(EPropertyGenKind::Int, TEXT("In"), 0);
	AddParameter(EPropertyGenKind::Str, TEXT("Out"), CPF_OutParm);
	AddParameter(EPropertyGenKind::Int, TEXT("InOut"), CPF_OutParm | CPF_ReferenceParm);
	AddParameter(EPropertyGenKind::Int, TEXT("ReturnValue"), CPF_OutParm | CPF_ReturnParm);
	Function->StaticLink(true);
	Class->AddFunctionToFunctionMap(Function, Function->GetFName());
	struct FParameters
	{
		int32 In = 1;
		FString Out = TEXT("before");
		int32 InOut = 2;
		int32 ReturnValue = 3;
	} Parameters;
	ASSERT_EQ(Function->ParmsSize, offsetof(FParameters, ReturnValue) + sizeof(int32));
	NewObject<UObject>(Package, Class)->ProcessEvent(Function, &Parameters);
	EXPECT_EQ(Parameters.In, 1);
	EXPECT_EQ(Parameters.Out, FString());
	EXPECT_EQ(Parameters.InOut, 2);
	EXPECT_EQ(Parameters.ReturnValue, 0);
}

TEST_F(FRunTimeClasses, ConstructionOfASubsystemOfPartsIsOnePerInstance)
{
	const UReflectedThing* const First = NewObject<UReflectedDerivedThing>(Package);
	const UReflectedThing* const Second = NewObject<UReflectedDerivedThing>(Package);
	EXPECT_NE(First->Part, Second->Part);
	EXPECT_EQ(First->Part->GetFName(), Second->Part->GetFName());
	EXPECT_TRUE(First->Part->IsA<UReflectedStrongPart>());
	UReflectedThing* const Template = NewObject<UReflectedDerivedThing>(Package);
	Template->Part->Strength = 50;
	Template->Single = Template->Part;
	const UReflectedThing* const Copy =
		NewObject<UReflectedDerivedThing>(Package, UReflectedDerivedThing::StaticClass(), NAME_None, RF_NoFlags, Template);
	EXPECT_EQ(Copy->Part->Strength, 50);
	EXPECT_EQ(Copy->Single, Copy->Part) << "a reference to the template's part is not one to the copy's";
	EXPECT_NE(Copy->Part, Template->Part);
}
