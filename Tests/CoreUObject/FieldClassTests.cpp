#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/PropertyOptional.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#include <gtest/gtest.h>

namespace
{
/** A property class without a cast flag of its own. */
class FScoreProperty : public FIntProperty
{
	DECLARE_FIELD(FScoreProperty, FIntProperty, CASTCLASS_None)
};

IMPLEMENT_FIELD(FScoreProperty)

/** Every field class that is known by name, with all classes above them. */
TSet<const FFieldClass*> ListClasses()
{
	TSet<const FFieldClass*> Classes;
	for (const auto& [Name, Class] : FFieldClass::GetNameToFieldClassMap())
	{
		for (const FFieldClass* Ancestor = Class; Ancestor; Ancestor = Ancestor->GetSuperClass())
		{
			Classes.Add(Ancestor);
		}
	}
	Classes.Add(FScoreProperty::StaticClass());
	return Classes;
}

bool IsAmongSupers(const FFieldClass* Class, const FFieldClass* Other)
{
	while (Class && Class != Other)
	{
		Class = Class->GetSuperClass();
	}
	return Class != nullptr;
}

TUniquePtr<FField> Make(const FFieldClass& Class)
{
	return TUniquePtr<FField>(Class.Construct(GetTransientPackage(), TEXT("Made")));
}

TEST(FieldClass, IsAChildOfItsSupersAlone)
{
	const TSet<const FFieldClass*> Classes = ListClasses();
	EXPECT_GT(Classes.Num(), 30);
	for (const FFieldClass* const Class : Classes)
	{
		for (const FFieldClass* const Other : Classes)
		{
			EXPECT_EQ(Class->IsChildOf(Other), IsAmongSupers(Class, Other))
				<< TCHAR_TO_UTF8(*Class->GetName()) << " and " << TCHAR_TO_UTF8(*Other->GetName());
		}
		EXPECT_FALSE(Class->IsChildOf(nullptr));
	}
}

TEST(FieldClass, OwnFlagIsNobodyElses)
{
	uint64 Seen = 0;
	for (const FFieldClass* const Class : ListClasses())
	{
		EXPECT_EQ(Seen & Class->GetId(), 0u) << TCHAR_TO_UTF8(*Class->GetName());
		Seen |= Class->GetId();
	}
	EXPECT_TRUE(FIntProperty::StaticClass()->HasAllCastFlags(CASTCLASS_FIntProperty | CASTCLASS_FNumericProperty | CASTCLASS_FProperty));
	EXPECT_FALSE(FIntProperty::StaticClass()->HasAllCastFlags(CASTCLASS_FIntProperty | CASTCLASS_FBoolProperty));
	EXPECT_TRUE(FIntProperty::StaticClass()->HasAnyCastFlags(CASTCLASS_FIntProperty | CASTCLASS_FBoolProperty));
}

TEST(FieldClass, FieldsHaveTheFlagsOfTheirClass)
{
	for (const auto& [Name, Class] : FFieldClass::GetNameToFieldClassMap())
	{
		const TUniquePtr<FField> Field = Make(*Class);
		EXPECT_EQ(Field->GetCastFlags(), Class->GetCastFlags()) << TCHAR_TO_UTF8(*Name.ToString());
		EXPECT_TRUE(Field->HasAllCastFlags(CASTCLASS_FProperty | Class->GetId())) << TCHAR_TO_UTF8(*Name.ToString());
		EXPECT_TRUE(Field->IsA(Class)) << TCHAR_TO_UTF8(*Name.ToString());
	}
}

TEST(FieldClass, ClassWithoutAFlagIsToldFromTheClassAboveIt)
{
	const TUniquePtr<FField> Score = Make(*FScoreProperty::StaticClass());
	const TUniquePtr<FField> Number = Make(*FIntProperty::StaticClass());

	EXPECT_EQ(CastField<FScoreProperty>(Score.Get()), Score.Get());
	EXPECT_EQ(CastField<FIntProperty>(Score.Get()), Score.Get());
	EXPECT_EQ(CastField<FNumericProperty>(Score.Get()), Score.Get());
	EXPECT_EQ(CastField<FBoolProperty>(Score.Get()), nullptr);
	EXPECT_EQ(CastField<FScoreProperty>(Number.Get()), nullptr);
	EXPECT_EQ(CastField<FField>(Number.Get()), Number.Get());
	EXPECT_EQ(ExactCastField<FIntProperty>(Score.Get()), nullptr);
}
}
