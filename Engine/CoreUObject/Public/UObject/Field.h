#pragma once

#include "CoreMinimal.h"
#include "UObject/ObjectMacros.h"

class FArchive;
class FField;
class FFieldVariant;
class FReferenceCollector;
class UClass;
class UObject;
class UPackage;
class UStruct;

/** What makes a field: its name without prefix ("IntProperty"), its parent and a way to construct one. Lives as long as the program. */
class COREUOBJECT_API FFieldClass
{
public:
	using FConstructFunction = FField* (*)(const FFieldVariant& Owner, const FName& Name, EObjectFlags Flags);

	/**
	 * CppName has the F prefix. Id is the class's own cast flag, or 0; CastFlags are that flag and those of its supers. Construct is
	 * null for an abstract class.
	 */
	FFieldClass(const TCHAR* CppName, uint64 InId, uint64 InCastFlags, FFieldClass* InSuperClass, FConstructFunction InConstruct);

	FString GetName() const { return Name.ToString(); }
	FName GetFName() const { return Name; }
	FFieldClass* GetSuperClass() const { return SuperClass; }
	/** The class's own flag of EClassCastFlags; 0 for a class that has none. */
	uint64 GetId() const { return Id; }
	uint64 GetCastFlags() const { return CastFlags; }
	bool HasAnyCastFlags(const uint64 InCastFlags) const { return (CastFlags & InCastFlags) != 0; }
	bool HasAllCastFlags(const uint64 InCastFlags) const { return (CastFlags & InCastFlags) == InCastFlags; }
	bool IsChildOf(const FFieldClass* Other) const
	{
		return Other && Other->Id ? HasAnyCastFlags(Other->Id) : IsChildOfByWalk(Other);
	}
	FText GetDisplayNameText() const;
	FString GetDescription() const { return GetName(); }

	/** Null when the class is abstract. The caller owns the field. */
	FField* Construct(const FFieldVariant& Owner, const FName& FieldName, EObjectFlags Flags = RF_NoFlags) const;

	/** Every concrete field class by its name. */
	static const TMap<FName, FFieldClass*>& GetNameToFieldClassMap();

private:
	bool IsChildOfByWalk(const FFieldClass* Other) const;

	FName Name;
	uint64 Id;
	uint64 CastFlags;
	FFieldClass* SuperClass;
	FConstructFunction ConstructFunction;
};

/** A field or an object: the two things that may own a field. */
class COREUOBJECT_API FFieldVariant
{
public:
	FFieldVariant() = default;
	FFieldVariant(TYPE_OF_NULLPTR) {}
	FFieldVariant(const FField* InField)
		: Field(const_cast<FField*>(InField))
	{
	}
	FFieldVariant(const UObject* InObject)
		: Object(const_cast<UObject*>(InObject))
	{
	}

	bool IsUObject() const { return Object != nullptr; }
	bool IsValid() const { return Object != nullptr || Field != nullptr; }
	explicit operator bool() const { return IsValid(); }
	FField* ToField() const { return Field; }
	UObject* ToUObject() const { return Object; }

	/** The owner as T, which is a field class or an object class, or null. */
	template <typename T>
	T* Get() const;
	template <typename T>
	bool IsA() const
	{
		return Get<T>() != nullptr;
	}

	FFieldVariant GetOwnerVariant() const;
	UClass* GetOwnerClass() const;
	FString GetName() const;
	FString GetPathName() const;
	FString GetFullName() const;
	FString GetClassName() const;
	FName GetFName() const;
	bool IsNative() const;
	UPackage* GetOutermost() const;

	bool operator==(const FFieldVariant& Other) const = default;
	friend uint32 GetTypeHash(const FFieldVariant& Variant) { return ::PointerHash(Variant.Object, ::PointerHash(Variant.Field)); }

private:
	FField* Field = nullptr;
	UObject* Object = nullptr;
};

/** TStaticFlags is the class's own flag of EClassCastFlags: CASTCLASS_None for a class that has none, which casts cost a walk then. */
#define DECLARE_FIELD_COMMON(TClass, TSuperClass, TStaticFlags) \
public: \
	using Super = TSuperClass; \
	using ThisClass = TClass; \
	static FFieldClass* StaticClass(); \
	static constexpr uint64 StaticClassCastFlagsPrivate() \
	{ \
		return uint64(TStaticFlags); \
	} \
	static constexpr uint64 StaticClassCastFlags() \
	{ \
		return uint64(TStaticFlags) | Super::StaticClassCastFlags(); \
	} \
	FFieldClass* GetClass() const override \
	{ \
		return StaticClass(); \
	} \
	uint64 GetCastFlags() const override \
	{ \
		return StaticClassCastFlags(); \
	}

#define DECLARE_FIELD(TClass, TSuperClass, TStaticFlags) \
	DECLARE_FIELD_COMMON(TClass, TSuperClass, TStaticFlags) \
	using Super::Super; \
	static FField* Construct(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags);

#define DECLARE_ABSTRACT_FIELD(TClass, TSuperClass, TStaticFlags) \
	DECLARE_FIELD_COMMON(TClass, TSuperClass, TStaticFlags) \
	using Super::Super;

#define IMPLEMENT_FIELD_CLASS(TClass, ConstructFunction) \
	FFieldClass* TClass::StaticClass() \
	{ \
		static FFieldClass FieldClass( \
			TEXT(#TClass), StaticClassCastFlagsPrivate(), StaticClassCastFlags(), Super::StaticClass(), ConstructFunction); \
		return &FieldClass; \
	}

#define IMPLEMENT_FIELD(TClass) \
	IMPLEMENT_FIELD_CLASS(TClass, &TClass::Construct) \
	FField* TClass::Construct(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags) \
	{ \
		return new TClass(InOwner, InName, InFlags); \
	}

#define IMPLEMENT_ABSTRACT_FIELD(TClass) IMPLEMENT_FIELD_CLASS(TClass, nullptr)

/**
 * A named member of a struct that is not an object itself: a property. Owned by the UStruct in whose ChildProperties chain it
 * stands, or by the property that it is an inner part of; both delete it.
 */
class COREUOBJECT_API FField
{
public:
	using ThisClass = FField;
	static FFieldClass* StaticClass();
	static constexpr uint64 StaticClassCastFlagsPrivate() { return uint64(CASTCLASS_None); }
	static constexpr uint64 StaticClassCastFlags() { return uint64(CASTCLASS_None); }

	FFieldVariant Owner;
	/** Next in the owner's chain, which the owner frees. */
	FField* Next = nullptr;
	FName NamePrivate;
	EObjectFlags FlagsPrivate = RF_NoFlags;

	FField(const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);
	virtual ~FField();
	FField(const FField&) = delete;
	FField& operator=(const FField&) = delete;

	virtual FFieldClass* GetClass() const;
	/** Those of the class, told without it: what makes casts cheap. */
	virtual uint64 GetCastFlags() const { return StaticClassCastFlags(); }
	bool HasAnyCastFlags(const uint64 InCastFlags) const { return (GetCastFlags() & InCastFlags) != 0; }
	bool HasAllCastFlags(const uint64 InCastFlags) const { return (GetCastFlags() & InCastFlags) == InCastFlags; }
	/** The form in which a class definition stands in a package. */
	virtual void Serialize(FArchive& Ar);
	virtual void PostLoad() {}
	/** Takes ownership of an inner part that was made with this field as its owner. */
	virtual void AddCppProperty(class FProperty* Property);
	/** The objects that the definition refers to (a struct, a class), for the collector. */
	virtual void AddReferencedObjects(FReferenceCollector& Collector) {}
	virtual void GetInnerFields(TArray<FField*>& OutFields) {}
	virtual FField* GetInnerFieldByName(const FName& InName) { return nullptr; }
	virtual void PostDuplicate(const FField& InField);

	FName GetFName() const { return NamePrivate; }
	FString GetName() const { return NamePrivate.ToString(); }
	void GetName(FString& OutName) const { OutName = NamePrivate.ToString(); }
	/** "/Script/Engine.Actor:bHidden". */
	FString GetPathName(const UObject* StopOuter = nullptr) const;
	/** "BoolProperty /Script/Engine.Actor:bHidden". */
	FString GetFullName() const;
	/** As declared, without what user-defined structs append to their members' names. */
	virtual FString GetAuthoredName() const;
	void Rename(const FName& NewName) { NamePrivate = NewName; }

	EObjectFlags GetFlags() const { return FlagsPrivate; }
	void SetFlags(EObjectFlags NewFlags) { FlagsPrivate = static_cast<EObjectFlags>(FlagsPrivate | NewFlags); }
	void ClearFlags(EObjectFlags OldFlags) { FlagsPrivate = static_cast<EObjectFlags>(FlagsPrivate & ~OldFlags); }
	bool HasAnyFlags(EObjectFlags Flags) const { return (FlagsPrivate & Flags) != 0; }
	bool HasAllFlags(EObjectFlags Flags) const { return (FlagsPrivate & Flags) == Flags; }

	bool IsA(const FFieldClass* FieldClass) const { return GetClass()->IsChildOf(FieldClass); }
	template <typename T>
	bool IsA() const
	{
		if constexpr (T::StaticClassCastFlagsPrivate() != 0)
		{
			return HasAnyCastFlags(T::StaticClassCastFlagsPrivate());
		}
		else
		{
			return IsA(T::StaticClass());
		}
	}
	FName GetID() const { return GetClass()->GetFName(); }
	bool IsNative() const { return Owner.IsNative(); }

	FFieldVariant GetOwnerVariant() const { return Owner; }
	/** The immediate owner as T, or null. */
	template <typename T>
	T* GetOwner() const
	{
		return Owner.Get<T>();
	}
	template <typename T>
	T* GetOwnerChecked() const
	{
		T* const Result = Owner.Get<T>();
		check(Result);
		return Result;
	}
	/** The nearest owner that is a T, fields and objects alike. */
	template <typename T>
	T* GetTypedOwner() const;
	/** The nearest owner that is an object. */
	UObject* GetOwnerUObject() const;
	UClass* GetOwnerClass() const;
	UStruct* GetOwnerStruct() const;
	UPackage* GetOutermost() const;
	UPackage* GetPackage() const { return GetOutermost(); }
	bool IsIn(const UObject* InOwner) const;
	bool IsIn(const FField* InOwner) const;

	const FString* FindMetaData(const TCHAR* Key) const;
	const FString* FindMetaData(const FName& Key) const;
	bool HasMetaData(const TCHAR* Key) const { return FindMetaData(Key) != nullptr; }
	bool HasMetaData(const FName& Key) const { return FindMetaData(Key) != nullptr; }
	/** Empty where the key is missing. */
	const FString& GetMetaData(const TCHAR* Key) const;
	const FString& GetMetaData(const FName& Key) const;
	FText GetMetaDataText(
		const TCHAR* MetaDataKey, const FString LocalizationNamespace = FString(), const FString LocalizationKey = FString()) const;
	void SetMetaData(const TCHAR* Key, const TCHAR* InValue);
	void SetMetaData(const FName& Key, const TCHAR* InValue);
	void SetMetaData(const TCHAR* Key, FString&& InValue);
	void SetMetaData(const FName& Key, FString&& InValue);
	/** A key without a value, or the value "true", counts as set. */
	bool GetBoolMetaData(const TCHAR* Key) const;
	bool GetBoolMetaData(const FName& Key) const;
	int32 GetIntMetaData(const TCHAR* Key) const;
	int32 GetIntMetaData(const FName& Key) const;
	float GetFloatMetaData(const TCHAR* Key) const;
	float GetFloatMetaData(const FName& Key) const;
	UClass* GetClassMetaData(const TCHAR* Key) const;
	UClass* GetClassMetaData(const FName& Key) const;
	void RemoveMetaData(const TCHAR* Key);
	void RemoveMetaData(const FName& Key);
	/** Null when the field has none. */
	const TMap<FName, FString>* GetMetaDataMap() const { return MetaDataMap.Get(); }
	void AppendMetaData(const TMap<FName, FString>& MetaDataMapToAppend);
	static void CopyMetaData(const FField* InSourceField, FField* InDestField);

	FText GetDisplayNameText() const;
	FText GetToolTipText(bool bShortTooltip = false) const;

	/** Null when no class of that name is known or it is abstract. */
	static FField* TryConstruct(
		const FName& FieldTypeName, const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);
	static FField* Construct(
		const FName& FieldTypeName, const FFieldVariant& InOwner, const FName& InName, EObjectFlags InFlags = RF_NoFlags);
	/** A copy of the definition (and its metadata) for another owner. */
	static FField* Duplicate(const FField* InField, const FFieldVariant& DestOwner, const FName DestName = NAME_None);
	static FName GenerateFFieldName(const FFieldVariant& InOwner, const FFieldClass* InClass);

private:
	TUniquePtr<TMap<FName, FString>> MetaDataMap;
};

/** The field as T, or null when it is something else. */
template <typename FieldType>
FieldType* CastField(FField* Src)
{
	return Src && Src->template IsA<FieldType>() ? static_cast<FieldType*>(Src) : nullptr;
}

template <typename FieldType>
const FieldType* CastField(const FField* Src)
{
	return Src && Src->template IsA<FieldType>() ? static_cast<const FieldType*>(Src) : nullptr;
}

template <typename FieldType>
FieldType* ExactCastField(FField* Src)
{
	return Src && Src->GetClass() == FieldType::StaticClass() ? static_cast<FieldType*>(Src) : nullptr;
}

template <typename FieldType>
const FieldType* ExactCastField(const FField* Src)
{
	return Src && Src->GetClass() == FieldType::StaticClass() ? static_cast<const FieldType*>(Src) : nullptr;
}

template <typename FieldType>
FieldType* CastFieldChecked(FField* Src)
{
	FieldType* const Result = CastField<FieldType>(Src);
	check(!Src || Result);
	return Result;
}

template <typename FieldType>
const FieldType* CastFieldChecked(const FField* Src)
{
	const FieldType* const Result = CastField<FieldType>(Src);
	check(!Src || Result);
	return Result;
}

/** Object->IsA(Class), for headers that see neither type. */
COREUOBJECT_API bool IsFieldOwnerObjectA(const UObject* Object, const UClass* Class);

template <typename T>
T* FFieldVariant::Get() const
{
	if constexpr (std::is_base_of_v<FField, T>)
	{
		return CastField<T>(Field);
	}
	else
	{
		return Object && IsFieldOwnerObjectA(Object, T::StaticClass()) ? static_cast<T*>(Object) : nullptr;
	}
}

template <typename T>
T* FField::GetTypedOwner() const
{
	for (FFieldVariant Candidate = Owner; Candidate.IsValid(); Candidate = Candidate.GetOwnerVariant())
	{
		if (T* const Result = Candidate.Get<T>())
		{
			return Result;
		}
	}
	return nullptr;
}

/** A field as it stands in a package: the name of its class (None for no field), then its body. Loading constructs it. */
COREUOBJECT_API void SerializeSingleField(FArchive& Ar, FField*& Field, FFieldVariant Owner);
