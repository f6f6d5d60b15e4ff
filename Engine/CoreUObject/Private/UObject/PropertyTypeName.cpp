#include "UObject/PropertyTypeName.h"

#include "Serialization/Archive.h"
#include "UObject/Class.h"
#include "UObject/EnumProperty.h"
#include "UObject/Package.h"
#include "UObject/PropertyOptional.h"
#include "UObject/UnrealType.h"

namespace
{
/** Real types nest a handful of levels; a hostile count must not make the reader walk forever. */
constexpr int32 MaxTypeNodes = 256;

/** A struct or enum: its name with its package as a parameter, then the GUID of a user-defined struct. */
FPropertyTypeName MakeTypePath(const UField* Type)
{
	FPropertyTypeName Result(Type->GetFName());
	Result.AddParameter(FPropertyTypeName(Type->GetOutermost()->GetFName()));
	return Result;
}

void AddEnum(FPropertyTypeName& Result, const UEnum* Enum)
{
	if (Enum)
	{
		Result.AddParameter(MakeTypePath(Enum));
	}
}
}

FPropertyTypeName::FPropertyTypeName(const FProperty* Property)
	: FPropertyTypeName(Property->GetIDForTag())
{
	if (const FStructProperty* const Struct = CastField<FStructProperty>(Property))
	{
		if (Struct->Struct)
		{
			AddParameter(MakeTypePath(Struct->Struct));
			if (const FGuid Guid = Struct->Struct->GetCustomGuid(); Guid.IsValid())
			{
				AddParameter(FPropertyTypeName(FName(*Guid.ToString(EGuidFormats::DigitsWithHyphensLower))));
			}
		}
	}
	else if (const FByteProperty* const Byte = CastField<FByteProperty>(Property))
	{
		AddEnum(*this, Byte->Enum);
	}
	else if (const FEnumProperty* const Enum = CastField<FEnumProperty>(Property))
	{
		AddEnum(*this, Enum->GetEnum());
		AddParameter(FPropertyTypeName(Enum->GetUnderlyingProperty()->GetID()));
	}
	else if (const FArrayProperty* const Array = CastField<FArrayProperty>(Property))
	{
		AddParameter(FPropertyTypeName(Array->Inner));
	}
	else if (const FSetProperty* const Set = CastField<FSetProperty>(Property))
	{
		AddParameter(FPropertyTypeName(Set->ElementProp));
	}
	else if (const FMapProperty* const Map = CastField<FMapProperty>(Property))
	{
		AddParameter(FPropertyTypeName(Map->KeyProp));
		AddParameter(FPropertyTypeName(Map->ValueProp));
	}
	else if (const FOptionalProperty* const Optional = CastField<FOptionalProperty>(Property))
	{
		AddParameter(FPropertyTypeName(Optional->GetValueProperty()));
	}
}

int32 FPropertyTypeName::SkipTree(int32 NodeIndex) const
{
	int32 Left = 1;
	while (Left > 0 && NodeIndex < Nodes.Num())
	{
		Left += Nodes[NodeIndex].InnerCount - 1;
		++NodeIndex;
	}
	return NodeIndex;
}

FPropertyTypeName FPropertyTypeName::GetParameter(int32 Index) const
{
	FPropertyTypeName Result;
	if (Index < 0 || Index >= GetParameterCount())
	{
		return Result;
	}
	int32 Start = 1;
	while (Index-- > 0)
	{
		Start = SkipTree(Start);
	}
	const int32 End = SkipTree(Start);
	for (int32 NodeIndex = Start; NodeIndex < End; ++NodeIndex)
	{
		Result.Nodes.Add(Nodes[NodeIndex]);
	}
	return Result;
}

void FPropertyTypeName::AddParameter(const FPropertyTypeName& Parameter)
{
	if (!Parameter.IsEmpty() && !IsEmpty())
	{
		Nodes.Append(Parameter.Nodes);
		++Nodes[0].InnerCount;
	}
}

FString FPropertyTypeName::ToString() const
{
	FString Result = GetName().ToString();
	for (int32 Index = 0; Index < GetParameterCount(); ++Index)
	{
		Result += (Index == 0 ? TEXT("(") : TEXT(",")) + GetParameter(Index).ToString();
	}
	return GetParameterCount() > 0 ? Result + TEXT(")") : Result;
}

FArchive& operator<<(FArchive& Ar, FPropertyTypeName& TypeName)
{
	if (!Ar.IsLoading())
	{
		for (FPropertyTypeName::FNode& Node : TypeName.Nodes)
		{
			Ar << Node.Name << Node.InnerCount;
		}
		return Ar;
	}
	TypeName.Nodes.Reset();
	for (int32 Left = 1; Left > 0 && !Ar.IsError(); --Left)
	{
		FPropertyTypeName::FNode& Node = TypeName.Nodes.AddDefaulted_GetRef();
		Ar << Node.Name << Node.InnerCount;
		if (Node.InnerCount < 0 || Node.InnerCount > MaxTypeNodes || TypeName.Nodes.Num() > MaxTypeNodes)
		{
			Ar.SetError();
			TypeName.Nodes.Reset();
			return Ar;
		}
		Left += Node.InnerCount;
	}
	return Ar;
}
