#include "PropertyTestTypes.h"

#include "Serialization/DuplicatedObject.h"
#include "UObject/EnumProperty.h"
#include "UObject/PropertyOptional.h"

#include <gtest/gtest.h>
#include <random>
#include <string>

namespace
{
/** Makes types that nest in one another, and values of them, from a seed. */
class FRandomValues
{
public:
	explicit FRandomValues(uint32 Seed)
		: Generator(Seed)
	{
	}

	int32 Below(int32 End) { return static_cast<int32>(Generator() % static_cast<uint32>(End)); }

	FPropertyDescription MakeType(UPackage* Package, int32 Depth, const TCHAR* Name = TEXT("Value"))
	{
		switch (Depth > 0 ? Below(6) : 5)
		{
			case 0:
				return DescribeContainer(EPropertyGenKind::Array, MakeElement(Package, Depth - 1), Name);
			case 1:
				return DescribeContainer(EPropertyGenKind::Set, MakeKeyType(), Name);
			case 2:
				return DescribeMap(MakeKeyType(), MakeElement(Package, Depth - 1), Name);
			case 3:
				return DescribeContainer(EPropertyGenKind::Optional, MakeElement(Package, Depth - 1), Name);
			case 4:
				return MakeStruct(Package, Depth, Name);
			default:
				return MakeLeaf(Name);
		}
	}

	FPropertyDescription MakeStruct(UPackage* Package, int32 Depth, const TCHAR* Name)
	{
		TArray<FPropertyDescription> Members;
		const int32 NumMembers = 1 + Below(4);
		for (int32 Index = 0; Index < NumMembers; ++Index)
		{
			Members.Add(MakeType(Package, Depth - 1, *FString::Printf(TEXT("M%d"), Index)));
			Members.Last().ArrayDim = Below(4) == 0 ? 2 : 1;
		}
		const FName StructName = MakeUniqueObjectName(Package, UScriptStruct::StaticClass(), TEXT("Nested"));
		return Describe(EPropertyGenKind::Struct, Name, MakeTestStruct(Package, *StructName.ToString(), Members));
	}

	void Fill(const FProperty* Property, void* Value)
	{
		if (const FStructProperty* const Struct = CastField<FStructProperty>(Property))
		{
			for (TFieldIterator<FProperty> It(Struct->Struct); It; ++It)
			{
				for (int32 Index = 0; Index < It->ArrayDim; ++Index)
				{
					FillOrLeave(*It, It->ContainerPtrToValuePtr<void>(Value, Index));
				}
			}
		}
		else if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
		{
			FScriptArrayHelper Helper(Array, Value);
			for (int32 Count = Below(4); Count > 0; --Count)
			{
				FillOrLeave(Array->Inner, Helper.GetRawPtr(Helper.AddValue()));
			}
		}
		else if (const FSetProperty* const Set = CastField<FSetProperty>(Property))
		{
			FTemporary Element(Set->ElementProp);
			for (int32 Count = Below(4); Count > 0; --Count)
			{
				Fill(Set->ElementProp, Element.Value);
				FScriptSetHelper(Set, Value).AddElement(Element.Value);
			}
		}
		else if (const FMapProperty* const Map = CastField<FMapProperty>(Property))
		{
			FTemporary Key(Map->KeyProp);
			for (int32 Count = Below(4); Count > 0; --Count)
			{
				Fill(Map->KeyProp, Key.Value);
				FillOrLeave(Map->ValueProp, FScriptMapHelper(Map, Value).FindOrAdd(Key.Value));
			}
		}
		else if (const FOptionalProperty* const Optional = CastField<FOptionalProperty>(Property))
		{
			if (Below(2))
			{
				FillOrLeave(Optional->GetValueProperty(), Optional->MarkSetAndGetInitializedValuePointerToReplace(Value));
			}
		}
		else
		{
			FillLeaf(Property, Value);
		}
	}

private:
	struct FTemporary
	{
		explicit FTemporary(const FProperty* InProperty)
			: Property(InProperty)
			, Value(InProperty->AllocateAndInitializeValue())
		{
		}
		~FTemporary() { Property->DestroyAndFreeValue(Value); }
		const FProperty* Property;
		void* Value;
	};

	/** As a declaration may have it: a container holds no container but inside a struct. */
	FPropertyDescription MakeElement(UPackage* Package, int32 Depth)
	{
		return Depth > 0 && Below(3) ? MakeStruct(Package, Depth, TEXT("Value")) : MakeLeaf(TEXT("Value"));
	}

	FPropertyDescription MakeKeyType()
	{
		constexpr EPropertyGenKind Kinds[] = {EPropertyGenKind::Int, EPropertyGenKind::Name, EPropertyGenKind::Str, EPropertyGenKind::Byte};
		return Describe(Kinds[Below(UE_ARRAY_COUNT(Kinds))]);
	}

	FPropertyDescription MakeLeaf(const TCHAR* Name)
	{
		constexpr EPropertyGenKind Kinds[] = {EPropertyGenKind::Bool, EPropertyGenKind::Byte, EPropertyGenKind::Int64,
			EPropertyGenKind::UInt64, EPropertyGenKind::Double, EPropertyGenKind::Name, EPropertyGenKind::Str, EPropertyGenKind::Text,
			EPropertyGenKind::Enum, EPropertyGenKind::Object, EPropertyGenKind::SoftObject};
		const EPropertyGenKind Kind = Kinds[Below(UE_ARRAY_COUNT(Kinds))];
		const bool bIsEnum = Kind == EPropertyGenKind::Enum;
		return Describe(Kind, Name, bIsEnum ? static_cast<UField*>(GetDoorEnum()) : UObject::StaticClass());
	}

	void FillOrLeave(const FProperty* Property, void* Value)
	{
		if (Below(4))
		{
			Fill(Property, Value);
		}
	}

	FString MakeString()
	{
		static const TCHAR Characters[] = TEXT("aZ09 _\"\\'(),=:;.{}[]<>|\t\n\r%\u00e9\u9580");
		FString Result;
		for (int32 Count = Below(12); Count > 0; --Count)
		{
			Result.AppendChar(Characters[Below(UE_ARRAY_COUNT(Characters) - 1)]);
		}
		return Result;
	}

	void FillLeaf(const FProperty* Property, void* Value)
	{
		if (Property->IsA<FStrProperty>())
		{
			*static_cast<FString*>(Value) = MakeString();
		}
		else if (Property->IsA<FNameProperty>())
		{
			*static_cast<FName*>(Value) = FName(*MakeString());
		}
		else if (Property->IsA<FTextProperty>())
		{
			*static_cast<FText*>(Value) = Below(2)
				? FText::AsCultureInvariant(MakeString() + TEXT("i"))
				: FText::ChangeKey(FString(TEXT("ns")), MakeString() + TEXT("k"), FText::FromString(MakeString()));
		}
		else if (const FBoolProperty* const Bool = CastField<FBoolProperty>(Property))
		{
			Bool->SetPropertyValue(Value, Below(2) == 1);
		}
		else if (const FEnumProperty* const Enum = CastField<FEnumProperty>(Property))
		{
			Enum->GetUnderlyingProperty()->SetIntPropertyValue(Value, Enum->GetEnum()->GetValueByIndex(Below(3)));
		}
		else if (const FSoftObjectProperty* const Soft = CastField<FSoftObjectProperty>(Property))
		{
			Soft->SetPropertyValue(Value, FSoftObjectPtr(FSoftObjectPath(FString::Printf(TEXT("/Game/S%d.S"), Below(5)))));
		}
		else if (const FObjectProperty* const Object = CastField<FObjectProperty>(Property))
		{
			Object->SetObjectPropertyValue(Value, Below(2) ? UClass::StaticClass() : UObject::StaticClass());
		}
		else if (const FNumericProperty* const Number = CastField<FNumericProperty>(Property))
		{
			if (Number->IsFloatingPoint())
			{
				// Six digits behind the point hold sixty-fourths.
				Number->SetFloatingPointPropertyValue(Value, (Below(100000) - 50000) / 64.0);
			}
			else
			{
				Number->SetIntPropertyValue(Value, (static_cast<uint64>(Generator()) << 32) | Generator());
			}
		}
	}

	std::mt19937 Generator;
};

std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

class FNestedValues : public testing::TestWithParam<int>
{
};

TEST_P(FNestedValues, ComeBackFromTextAndBytes)
{
	constexpr int32 MaxDepth = 4;
	constexpr int32 NumValues = 8;
	UPackage* const Package = MakeTestPackage(TEXT("/Script/NestedTests"));
	FRandomValues Random(static_cast<uint32>(GetParam()));
	const FPropertyDescription Type = Random.MakeStruct(Package, MaxDepth, TEXT("Value"));
	for (int32 Count = 0; Count < NumValues; ++Count)
	{
		FTestValue Value(Type);
		Random.Fill(Value.Property.Get(), Value.Memory);
		const FString Text = Value.Export();

		FTestValue FromText(Type);
		ASSERT_TRUE(FromText.Import(*Text)) << ToStd(Text) << "\n"
											<< ToStd(FromText.Errors.Text);
		ASSERT_TRUE(Value.Property->Identical(Value.Memory, FromText.Memory)) << ToStd(Text) << "\n"
																			  << ToStd(FromText.Export());
		ASSERT_EQ(ToStd(FromText.Export()), ToStd(Text));

		TArray<uint8> Bytes;
		FDuplicateDataWriter Writer(Bytes);
		Value.Property->SerializeItem(Writer, Value.Memory);
		FTestValue FromBytes(Type);
		Random.Fill(FromBytes.Property.Get(), FromBytes.Memory);
		FromBytes.Property->ClearValue(FromBytes.Memory);
		FDuplicateDataReader Reader(Bytes, 0, [](UObject* Object)
			{ return Object; });
		FromBytes.Property->SerializeItem(Reader, FromBytes.Memory);
		ASSERT_TRUE(Value.Property->Identical(Value.Memory, FromBytes.Memory)) << ToStd(Text) << "\n"
																			   << ToStd(FromBytes.Export());

		// Only what differs from a default is written, and read over that default gives the value again.
		FTestValue Default(Type);
		Random.Fill(Default.Property.Get(), Default.Memory);
		FString Difference;
		Value.Property->ExportTextItem_Direct(Difference, Value.Memory, Default.Memory, nullptr, PPF_None);
		ASSERT_TRUE(Default.Import(*Difference)) << ToStd(Difference);
		ASSERT_TRUE(Value.Property->Identical(Value.Memory, Default.Memory)) << ToStd(Difference) << "\n"
																			 << ToStd(Text) << "\n"
																			 << ToStd(Default.Export());
	}
}

INSTANTIATE_TEST_SUITE_P(Seeds, FNestedValues, testing::Range(0, 60));
}
