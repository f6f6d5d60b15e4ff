#pragma once

#include "UObject/Class.h"
#include "UObject/Field.h"

enum class EFieldIterationFlags : uint8
{
	None = 0,
	/** Fields of the super structs too. */
	IncludeSuper = 1 << 0,
	/** Fields marked deprecated too. */
	IncludeDeprecated = 1 << 1,
	/** Fields of the interfaces that a class implements too. */
	IncludeInterfaces = 1 << 2,
	IncludeAll = IncludeSuper | IncludeDeprecated | IncludeInterfaces,
	Default = IncludeSuper | IncludeDeprecated
};
ENUM_CLASS_FLAGS(EFieldIterationFlags)

namespace EFieldIteratorFlags
{
enum SuperClassFlags
{
	ExcludeSuper = 0,
	IncludeSuper = 1
};
enum DeprecatedPropertyFlags
{
	ExcludeDeprecated = 0,
	IncludeDeprecated = 1 << 1
};
enum InterfaceClassFlags
{
	ExcludeInterfaces = 0,
	IncludeInterfaces = 1 << 2
};
}

/** The struct, then its supers; a class is followed (if wanted) by the interfaces that it names, without theirs. */
COREUOBJECT_API TArray<const UStruct*> GatherFieldIterationStructs(const UStruct* Struct, EFieldIterationFlags Flags);
COREUOBJECT_API bool IsDeprecatedField(const FField* Field);

/** Visits the fields of a struct: FField kinds through ChildProperties, UField kinds (UFunction) through Children. */
template <typename FieldType>
class TFieldIterator
{
public:
	using FLink = std::conditional_t<std::is_base_of_v<FField, FieldType>, FField, UField>;

	TFieldIterator(const UStruct* InStruct, EFieldIterationFlags InFlags = EFieldIterationFlags::Default)
		: Structs(GatherFieldIterationStructs(InStruct, InFlags))
		, Flags(InFlags)
	{
		EnterStruct();
	}
	TFieldIterator(const UStruct* InStruct, EFieldIteratorFlags::SuperClassFlags InSuper,
		EFieldIteratorFlags::DeprecatedPropertyFlags InDeprecated = EFieldIteratorFlags::IncludeDeprecated,
		EFieldIteratorFlags::InterfaceClassFlags InInterface = EFieldIteratorFlags::ExcludeInterfaces)
		: TFieldIterator(InStruct,
			  static_cast<EFieldIterationFlags>(
				  static_cast<int32>(InSuper) | static_cast<int32>(InDeprecated) | static_cast<int32>(InInterface)))
	{
	}

	explicit operator bool() const { return Field != nullptr; }
	TFieldIterator& operator++()
	{
		Field = Field->Next;
		Settle();
		return *this;
	}
	FieldType* operator*() const { return static_cast<FieldType*>(Field); }
	FieldType* operator->() const { return static_cast<FieldType*>(Field); }
	/** The struct that the current field belongs to. */
	const UStruct* GetStruct() const { return Structs[StructIndex]; }
	bool operator==(const TFieldIterator& Other) const { return Field == Other.Field; }

private:
	void EnterStruct()
	{
		Field = nullptr;
		if (StructIndex < Structs.Num())
		{
			if constexpr (std::is_same_v<FLink, FField>)
			{
				Field = Structs[StructIndex]->ChildProperties;
			}
			else
			{
				Field = Structs[StructIndex]->Children;
			}
			Settle();
		}
	}

	bool IsWanted() const
	{
		if constexpr (std::is_same_v<FLink, FField>)
		{
			return Field->template IsA<FieldType>() &&
				(EnumHasAnyFlags(Flags, EFieldIterationFlags::IncludeDeprecated) || !IsDeprecatedField(Field));
		}
		else
		{
			return Field->IsA(FieldType::StaticClass());
		}
	}

	void Settle()
	{
		while (true)
		{
			while (Field && !IsWanted())
			{
				Field = Field->Next;
			}
			if (Field || StructIndex + 1 >= Structs.Num())
			{
				return;
			}
			++StructIndex;
			if constexpr (std::is_same_v<FLink, FField>)
			{
				Field = Structs[StructIndex]->ChildProperties;
			}
			else
			{
				Field = Structs[StructIndex]->Children;
			}
		}
	}

	TArray<const UStruct*> Structs;
	int32 StructIndex = 0;
	FLink* Field = nullptr;
	EFieldIterationFlags Flags;
};

template <typename FieldType>
struct TFieldRange
{
	template <typename... ArgTypes>
	explicit TFieldRange(const UStruct* InStruct, ArgTypes... Args)
		: First(InStruct, Args...)
	{
	}

	struct FEnd
	{
	};
	struct FIterator : public TFieldIterator<FieldType>
	{
		using TFieldIterator<FieldType>::TFieldIterator;
		bool operator!=(FEnd) const { return static_cast<bool>(*this); }
	};
	FIterator begin() const { return First; }
	FEnd end() const { return {}; }

private:
	FIterator First;
};

/** The field of that name and kind in the struct or its supers, or null. */
template <typename T>
T* FindFProperty(const UStruct* Owner, FName FieldName)
{
	if (!Owner || FieldName.IsNone())
	{
		return nullptr;
	}
	for (TFieldIterator<T> It(Owner); It; ++It)
	{
		if (It->GetFName() == FieldName)
		{
			return *It;
		}
	}
	return nullptr;
}

template <typename T>
T* FindFProperty(const UStruct* Owner, const TCHAR* FieldName)
{
	return FindFProperty<T>(Owner, FName(FieldName, FNAME_Find));
}

/** A property by its whole path: "/Script/Engine.Actor:bHidden". */
COREUOBJECT_API FProperty* FindPropertyByPath(const TCHAR* FieldPath);

template <typename T>
T* FindFProperty(const TCHAR* InFieldPath)
{
	return CastField<T>(FindPropertyByPath(InFieldPath));
}

/** As FindFProperty, for UField kinds (UFunction) and FField kinds alike. */
template <typename T>
T* FindUField(const UStruct* Owner, FName FieldName)
{
	return FindFProperty<T>(Owner, FieldName);
}

template <typename T>
T* FindUField(const UStruct* Owner, const TCHAR* FieldName)
{
	return FindFProperty<T>(Owner, FName(FieldName, FNAME_Find));
}

template <typename T>
T* FindFieldChecked(const UStruct* Owner, FName FieldName)
{
	T* const Result = FindFProperty<T>(Owner, FieldName);
	check(Result);
	return Result;
}

template <typename T>
T* FindField(const UStruct* Owner, FName FieldName)
{
	return FindFProperty<T>(Owner, FieldName);
}
