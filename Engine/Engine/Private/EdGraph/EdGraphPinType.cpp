#include "EdGraph/EdGraphPin.h"

#include "Serialization/Archive.h"
#include "UObject/BlueprintsObjectVersion.h"
#include "UObject/FrameworkObjectVersion.h"
#include "UObject/ReleaseObjectVersion.h"
#include "UObject/UE5ReleaseStreamObjectVersion.h"

namespace
{
const FName FloatCategory(TEXT("float"));
const FName DoubleCategory(TEXT("double"));
const FName RealCategory(TEXT("real"));

void SerializeName(FArchive& Ar, FName& Name)
{
	if (Ar.CustomVer(FFrameworkObjectVersion::GUID) >= FFrameworkObjectVersion::PinsStoreFName)
	{
		Ar << Name;
		return;
	}
	FString Text = Name.IsNone() ? FString() : Name.ToString();
	Ar << Text;
	if (Ar.IsLoading())
	{
		Name = Text.IsEmpty() ? FName() : FName(*Text);
	}
}

/** Packages from before "real" say "float" for what is now a real of single precision. */
void ConvertToReal(FName& Category, FName& SubCategory)
{
	if (Category == FloatCategory || Category == DoubleCategory)
	{
		Category = RealCategory;
		SubCategory = DoubleCategory;
	}
}

/** The names that a package of the archive's version has for a type. */
void ConvertFromReal(const FArchive& Ar, FName& Category, FName& SubCategory)
{
	const bool bIsOldPackage = Ar.IsSaving() && Ar.IsPersistent() &&
		Ar.CustomVer(FUE5ReleaseStreamObjectVersion::GUID) < FUE5ReleaseStreamObjectVersion::BlueprintPinsUseRealNumbers;
	if (bIsOldPackage && Category == RealCategory)
	{
		Category = FloatCategory;
		SubCategory = FName();
	}
}

template <typename FlagType>
void SerializeFlag(FArchive& Ar, FlagType&& Get, TFunctionRef<void(bool)> Set)
{
	bool bFlag = Get();
	Ar << bFlag;
	if (Ar.IsLoading())
	{
		Set(bFlag);
	}
}
}

FArchive& operator<<(FArchive& Ar, FSimpleMemberReference& Reference)
{
	Ar << Reference.MemberParent;
	Ar << Reference.MemberName;
	Ar << Reference.MemberGuid;
	return Ar;
}

FEdGraphTerminalType FEdGraphTerminalType::FromPinType(const FEdGraphPinType& PinType)
{
	FEdGraphTerminalType Result;
	Result.TerminalCategory = PinType.PinCategory;
	Result.TerminalSubCategory = PinType.PinSubCategory;
	Result.TerminalSubCategoryObject = PinType.PinSubCategoryObject;
	Result.bTerminalIsConst = PinType.bIsConst;
	Result.bTerminalIsWeakPointer = PinType.bIsWeakPointer;
	Result.bTerminalIsUObjectWrapper = PinType.bIsUObjectWrapper;
	return Result;
}

FArchive& operator<<(FArchive& Ar, FEdGraphTerminalType& Type)
{
	Ar.UsingCustomVersion(FFrameworkObjectVersion::GUID);
	Ar.UsingCustomVersion(FReleaseObjectVersion::GUID);
	Ar.UsingCustomVersion(FUE5ReleaseStreamObjectVersion::GUID);
	FName Category = Type.TerminalCategory;
	FName SubCategory = Type.TerminalSubCategory;
	ConvertFromReal(Ar, Category, SubCategory);
	SerializeName(Ar, Category);
	SerializeName(Ar, SubCategory);

	UObject* SubCategoryObject = Type.TerminalSubCategoryObject.Get();
	Ar << SubCategoryObject;
	Ar << Type.bTerminalIsConst;
	Ar << Type.bTerminalIsWeakPointer;
	if (Ar.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::PinTypeIncludesUObjectWrapperFlag)
	{
		Ar << Type.bTerminalIsUObjectWrapper;
	}
	if (Ar.IsLoading())
	{
		Type.TerminalCategory = Category;
		Type.TerminalSubCategory = SubCategory;
		Type.TerminalSubCategoryObject = SubCategoryObject;
		if (Ar.CustomVer(FUE5ReleaseStreamObjectVersion::GUID) < FUE5ReleaseStreamObjectVersion::BlueprintPinsUseRealNumbers)
		{
			ConvertToReal(Type.TerminalCategory, Type.TerminalSubCategory);
		}
	}
	return Ar;
}

bool FEdGraphPinType::operator==(const FEdGraphPinType& Other) const
{
	return PinCategory == Other.PinCategory && PinSubCategory == Other.PinSubCategory &&
		PinSubCategoryObject == Other.PinSubCategoryObject && PinValueType == Other.PinValueType &&
		PinSubCategoryMemberReference == Other.PinSubCategoryMemberReference && ContainerType == Other.ContainerType &&
		bIsReference == Other.bIsReference && bIsConst == Other.bIsConst && bIsWeakPointer == Other.bIsWeakPointer &&
		bIsUObjectWrapper == Other.bIsUObjectWrapper;
}

FEdGraphPinType FEdGraphPinType::GetPinTypeForTerminalType(const FEdGraphTerminalType& TerminalType)
{
	FEdGraphPinType Result;
	Result.PinCategory = TerminalType.TerminalCategory;
	Result.PinSubCategory = TerminalType.TerminalSubCategory;
	Result.PinSubCategoryObject = TerminalType.TerminalSubCategoryObject;
	Result.bIsConst = TerminalType.bTerminalIsConst;
	Result.bIsWeakPointer = TerminalType.bTerminalIsWeakPointer;
	Result.bIsUObjectWrapper = TerminalType.bTerminalIsUObjectWrapper;
	return Result;
}

FEdGraphPinType FEdGraphPinType::GetTerminalTypeForContainer(const FEdGraphPinType& ContainerPinType)
{
	FEdGraphPinType Result = ContainerPinType;
	Result.PinValueType = FEdGraphTerminalType();
	Result.ContainerType = EPinContainerType::None;
	Result.bIsReference = false;
	Result.bIsConst = false;
	return Result;
}

bool FEdGraphPinType::Serialize(FArchive& Ar)
{
	Ar.UsingCustomVersion(FFrameworkObjectVersion::GUID);
	Ar.UsingCustomVersion(FBlueprintsObjectVersion::GUID);
	Ar.UsingCustomVersion(FReleaseObjectVersion::GUID);
	Ar.UsingCustomVersion(FUE5ReleaseStreamObjectVersion::GUID);
	if (Ar.UE4Ver() < VER_UE4_EDGRAPHPINTYPE_SERIALIZATION)
	{
		return false;
	}

	FName Category = PinCategory;
	FName SubCategory = PinSubCategory;
	ConvertFromReal(Ar, Category, SubCategory);
	SerializeName(Ar, Category);
	SerializeName(Ar, SubCategory);
	UObject* SubCategoryObject = PinSubCategoryObject.Get();
	Ar << SubCategoryObject;
	if (Ar.IsLoading())
	{
		PinCategory = Category;
		PinSubCategory = SubCategory;
		PinSubCategoryObject = SubCategoryObject;
	}

	if (Ar.CustomVer(FFrameworkObjectVersion::GUID) >= FFrameworkObjectVersion::EdGraphPinContainerType)
	{
		Ar << ContainerType;
		if (IsMap())
		{
			Ar << PinValueType;
		}
	}
	else
	{
		bool bIsMap = IsMap();
		bool bIsSet = IsSet();
		bool bIsArray = IsArray();
		if (Ar.CustomVer(FBlueprintsObjectVersion::GUID) >= FBlueprintsObjectVersion::AdvancedContainerSupport)
		{
			Ar << bIsMap;
			if (bIsMap)
			{
				Ar << PinValueType;
			}
			Ar << bIsSet;
		}
		Ar << bIsArray;
		ContainerType = bIsMap ? EPinContainerType::Map : bIsSet ? EPinContainerType::Set
			: bIsArray                                           ? EPinContainerType::Array
																 : EPinContainerType::None;
	}

	SerializeFlag(
		Ar, [this]
		{ return bIsReference != 0; },
		[this](bool bFlag)
		{ bIsReference = bFlag; });
	SerializeFlag(
		Ar, [this]
		{ return bIsWeakPointer != 0; },
		[this](bool bFlag)
		{ bIsWeakPointer = bFlag; });
	if (Ar.UE4Ver() >= VER_UE4_MEMBERREFERENCE_IN_PINTYPE)
	{
		Ar << PinSubCategoryMemberReference;
	}
	if (Ar.UE4Ver() >= VER_UE4_SERIALIZE_PINTYPE_CONST)
	{
		SerializeFlag(
			Ar, [this]
			{ return bIsConst != 0; },
			[this](bool bFlag)
			{ bIsConst = bFlag; });
	}
	if (Ar.CustomVer(FReleaseObjectVersion::GUID) >= FReleaseObjectVersion::PinTypeIncludesUObjectWrapperFlag)
	{
		SerializeFlag(
			Ar, [this]
			{ return bIsUObjectWrapper != 0; },
			[this](bool bFlag)
			{ bIsUObjectWrapper = bFlag; });
	}
	if (Ar.CustomVer(FUE5ReleaseStreamObjectVersion::GUID) >=
		FUE5ReleaseStreamObjectVersion::SerializeFloatPinDefaultValuesAsSinglePrecision)
	{
		SerializeFlag(
			Ar, [this]
			{ return bSerializeAsSinglePrecisionFloat != 0; },
			[this](bool bFlag)
			{ bSerializeAsSinglePrecisionFloat = bFlag; });
	}
	if (Ar.IsLoading() && Ar.CustomVer(FUE5ReleaseStreamObjectVersion::GUID) < FUE5ReleaseStreamObjectVersion::BlueprintPinsUseRealNumbers)
	{
		ConvertToReal(PinCategory, PinSubCategory);
	}
	return true;
}
