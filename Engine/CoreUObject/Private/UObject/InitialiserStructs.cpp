#include "InitialiserReader.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

namespace
{
struct FNamedStruct
{
	const TCHAR* Name;
	/** Of the whole value, members that are zero left out. */
	const TCHAR* Import;
};

constexpr FNamedStruct NamedStructs[] = {
	{TEXT("FVector::ZeroVector"), TEXT("()")},
	{TEXT("FVector::OneVector"), TEXT("(X=1,Y=1,Z=1)")},
	{TEXT("FVector::UpVector"), TEXT("(Z=1)")},
	{TEXT("FVector::DownVector"), TEXT("(Z=-1)")},
	{TEXT("FVector::ForwardVector"), TEXT("(X=1)")},
	{TEXT("FVector::BackwardVector"), TEXT("(X=-1)")},
	{TEXT("FVector::RightVector"), TEXT("(Y=1)")},
	{TEXT("FVector::LeftVector"), TEXT("(Y=-1)")},
	{TEXT("FVector::XAxisVector"), TEXT("(X=1)")},
	{TEXT("FVector::YAxisVector"), TEXT("(Y=1)")},
	{TEXT("FVector::ZAxisVector"), TEXT("(Z=1)")},
	{TEXT("FVector2D::ZeroVector"), TEXT("()")},
	{TEXT("FVector2D::UnitVector"), TEXT("(X=1,Y=1)")},
	{TEXT("FRotator::ZeroRotator"), TEXT("()")},
	{TEXT("FQuat::Identity"), TEXT("(W=1)")},
	{TEXT("FTransform::Identity"), TEXT("(Rotation=(W=1),Scale3D=(X=1,Y=1,Z=1))")},
	{TEXT("FIntPoint::ZeroValue"), TEXT("()")},
	{TEXT("FIntVector::ZeroValue"), TEXT("()")},
	{TEXT("FLinearColor::White"), TEXT("(R=1,G=1,B=1,A=1)")},
	{TEXT("FLinearColor::Gray"), TEXT("(R=0.5,G=0.5,B=0.5,A=1)")},
	{TEXT("FLinearColor::Black"), TEXT("(A=1)")},
	{TEXT("FLinearColor::Transparent"), TEXT("()")},
	{TEXT("FLinearColor::Red"), TEXT("(R=1,A=1)")},
	{TEXT("FLinearColor::Green"), TEXT("(G=1,A=1)")},
	{TEXT("FLinearColor::Blue"), TEXT("(B=1,A=1)")},
	{TEXT("FLinearColor::Yellow"), TEXT("(R=1,G=1,A=1)")},
	{TEXT("FColor::White"), TEXT("(R=255,G=255,B=255,A=255)")},
	{TEXT("FColor::Black"), TEXT("(A=255)")},
	{TEXT("FColor::Transparent"), TEXT("()")},
	{TEXT("FColor::Red"), TEXT("(R=255,A=255)")},
	{TEXT("FColor::Green"), TEXT("(G=255,A=255)")},
	{TEXT("FColor::Blue"), TEXT("(B=255,A=255)")},
	{TEXT("FColor::Yellow"), TEXT("(R=255,G=255,A=255)")},
	{TEXT("FColor::Cyan"), TEXT("(G=255,B=255,A=255)")},
	{TEXT("FColor::Magenta"), TEXT("(R=255,B=255,A=255)")},
	{TEXT("FColor::Orange"), TEXT("(R=243,G=156,B=18,A=255)")},
};

/** A constructor whose arguments are members. */
struct FConstructorForm
{
	const TCHAR* Struct;
	/** In the order of the arguments. A single argument may go to several. */
	const TCHAR* Members;
	int32 NumArguments;
	/** What members without an argument get. */
	const TCHAR* Rest = nullptr;
};

constexpr FConstructorForm ConstructorForms[] = {
	{TEXT("Vector"), TEXT("X Y Z"), 3},
	{TEXT("Vector"), TEXT("X Y Z"), 1},
	{TEXT("Vector3f"), TEXT("X Y Z"), 3},
	{TEXT("Vector3f"), TEXT("X Y Z"), 1},
	{TEXT("Vector2D"), TEXT("X Y"), 2},
	{TEXT("Vector2D"), TEXT("X Y"), 1},
	{TEXT("Vector4"), TEXT("X Y Z W"), 4},
	{TEXT("Plane"), TEXT("X Y Z W"), 4},
	{TEXT("Rotator"), TEXT("Pitch Yaw Roll"), 3},
	{TEXT("Rotator"), TEXT("Pitch Yaw Roll"), 1},
	{TEXT("Quat"), TEXT("X Y Z W"), 4},
	{TEXT("LinearColor"), TEXT("R G B A"), 4},
	{TEXT("LinearColor"), TEXT("R G B"), 3, TEXT("(A=1)")},
	{TEXT("Color"), TEXT("R G B A"), 4},
	{TEXT("Color"), TEXT("R G B"), 3, TEXT("(A=255)")},
	{TEXT("IntPoint"), TEXT("X Y"), 2},
	{TEXT("IntPoint"), TEXT("X Y"), 1},
	{TEXT("IntVector"), TEXT("X Y Z"), 3},
	{TEXT("IntVector"), TEXT("X Y Z"), 1},
	{TEXT("Guid"), TEXT("A B C D"), 4},
	{TEXT("Transform"), TEXT("Rotation Translation Scale3D"), 3},
};

bool ImportStruct(const UScriptStruct* Struct, void* Value, const TCHAR* Import)
{
	return Struct->ImportText(Import, Value, nullptr, PPF_None, nullptr, Struct->GetName(), false) != nullptr;
}
}

bool FInitialiserReader::ReadStruct(const UScriptStruct* Struct, void* Value)
{
	if (TakeIf(TEXT("{")))
	{
		return ReadMembers(Struct, Value, TEXT("}"));
	}
	const FString Name = TakeName();
	if (Name == TEXT("ForceInit") || Name == TEXT("ForceInitToZero") || Name == TEXT("EForceInit::ForceInit"))
	{
		return true;
	}
	const FString StructName = Struct->GetStructCPPName();
	for (const FNamedStruct& Row : NamedStructs)
	{
		if (Name.Equals(Row.Name, ESearchCase::CaseSensitive) && Name.StartsWith(StructName + TEXT("::"), ESearchCase::CaseSensitive))
		{
			return ImportStruct(Struct, Value, Row.Import);
		}
	}
	if (Name != StructName)
	{
		return false;
	}
	if (TakeIf(TEXT("{")))
	{
		return ReadMembers(Struct, Value, TEXT("}"));
	}
	return TakeIf(TEXT("(")) && ReadConstructor(Struct, Value, TEXT(")"));
}

bool FInitialiserReader::ReadMembers(const UScriptStruct* Struct, void* Value, const TCHAR* Close)
{
	if (TakeIf(Close))
	{
		return true;
	}
	// Braces call a constructor where the struct has one.
	for (const FConstructorForm& Form : ConstructorForms)
	{
		if (Struct->GetName() == Form.Struct)
		{
			return ReadConstructor(Struct, Value, Close);
		}
	}
	TFieldIterator<FProperty> Next(Struct);
	do
	{
		const FProperty* Member = nullptr;
		if (TakeIf(TEXT(".")))
		{
			const FString Name = TakeName();
			Member = FindFProperty<FProperty>(Struct, *Name);
			if (!TakeIf(TEXT("=")))
			{
				return false;
			}
		}
		else if (Next)
		{
			Member = *Next;
			++Next;
		}
		if (!Member)
		{
			return false;
		}
		void* const MemberValue = Member->ContainerPtrToValuePtr<void>(Value);
		if (!(Member->ArrayDim > 1 ? ReadElements(Member, MemberValue) : ReadValue(Member, MemberValue)))
		{
			return false;
		}
	} while (TakeIf(TEXT(",")) && !Peek(Close));
	return TakeIf(Close);
}

bool FInitialiserReader::ReadConstructor(const UScriptStruct* Struct, void* Value, const TCHAR* Close)
{
	const TCHAR* const Start = Position;
	if (TakeIf(Close))
	{
		return true;
	}
	if (TakeName().Contains(TEXT("ForceInit")) && TakeIf(Close))
	{
		return true;
	}
	for (const FConstructorForm& Form : ConstructorForms)
	{
		if (Struct->GetName() != Form.Struct)
		{
			continue;
		}
		Position = Start;
		TArray<FString> Members;
		FString(Form.Members).ParseIntoArray(Members, TEXT(" "));
		bool bRead = !Form.Rest || ImportStruct(Struct, Value, Form.Rest);
		for (int32 Index = 0; Index < Form.NumArguments && bRead; ++Index)
		{
			const FProperty* const Member = FindFProperty<FProperty>(Struct, *Members[Index]);
			bRead = Member && (Index == 0 || TakeIf(TEXT(","))) && ReadValue(Member, Member->ContainerPtrToValuePtr<void>(Value));
		}
		if (!bRead || !TakeIf(Close))
		{
			continue;
		}
		const FProperty* const First = FindFProperty<FProperty>(Struct, *Members[0]);
		for (int32 Index = Form.NumArguments; Index < Members.Num(); ++Index)
		{
			const FProperty* const Other = FindFProperty<FProperty>(Struct, *Members[Index]);
			Other->CopyCompleteValue(Other->ContainerPtrToValuePtr<void>(Value), First->ContainerPtrToValuePtr<void>(Value));
		}
		return true;
	}
	return false;
}

bool FInitialiserReader::ReadList(const FProperty* Property, void* Value)
{
	if (!Peek(TEXT("{")) && TakeName().IsEmpty())
	{
		return false;
	}
	if (TakeIf(TEXT("(")))
	{
		return TakeIf(TEXT(")"));
	}
	if (!TakeIf(TEXT("{")))
	{
		return false;
	}
	const FArrayProperty* const Array = CastField<FArrayProperty>(Property);
	const FSetProperty* const Set = CastField<FSetProperty>(Property);
	const FMapProperty* const Map = CastField<FMapProperty>(Property);
	while (!TakeIf(TEXT("}")))
	{
		bool bRead = false;
		if (Array)
		{
			FScriptArrayHelper Helper(Array, Value);
			bRead = ReadValue(Array->Inner, Helper.GetRawPtr(Helper.AddValue()));
		}
		else
		{
			const FProperty* const KeyProperty = Set ? Set->ElementProp : Map->KeyProp;
			void* const Key = KeyProperty->AllocateAndInitializeValue();
			bRead = (Set || TakeIf(TEXT("{"))) && ReadValue(KeyProperty, Key);
			if (bRead && Set)
			{
				FScriptSetHelper(Set, Value).AddElement(Key);
			}
			else if (bRead)
			{
				bRead = TakeIf(TEXT(",")) && ReadValue(Map->ValueProp, FScriptMapHelper(Map, Value).FindOrAdd(Key)) && TakeIf(TEXT("}"));
			}
			KeyProperty->DestroyAndFreeValue(Key);
		}
		if (!bRead || (!TakeIf(TEXT(",")) && !Peek(TEXT("}"))))
		{
			return false;
		}
	}
	return true;
}
