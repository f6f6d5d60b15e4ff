#pragma once

#include "CoreMinimal.h"
#include "Lum/LumProperty.h"
#include "Lum/Value/LumValuePlace.h"
#include "Misc/Optional.h"

#include <new>
#include <type_traits>

/** Room for one property that is used on the spot: the usual kinds are made in it, without an allocation. */
class FLumPropertyRoom
{
public:
	FLumPropertyRoom() = default;
	~FLumPropertyRoom() { Empty(); }
	UE_NONCOPYABLE(FLumPropertyRoom)

	/** Null while the room is empty. It lives until the room has another one. */
	ILumProperty* Get() const { return Property; }

	/** Makes a property of the value at the place. */
	template <typename PropertyType>
	void Emplace(const FLumValuePlaceRef& InPlace)
	{
		Empty();
		Construct<PropertyType>(InPlace);
	}

	/** Makes a property of a member of the owner, or of the struct at the place above. */
	template <typename PropertyType, typename AboveType>
	void EmplaceMember(const TSharedRef<AboveType>& Above, const FProperty& Member)
	{
		Empty();
		if constexpr (std::is_base_of_v<ILumCompoundProperty, PropertyType>)
		{
			// What is inside the value refers to its place, and may outlive the property.
			Construct<PropertyType>(MakeShared<FLumValuePlace>(Above, FLumValuePlace::EPart::Member, Member));
		}
		else
		{
			Place.Emplace(Above, FLumValuePlace::EPart::Member, Member);
			Construct<PropertyType>(FLumValuePlaceRef(Above, &Place.GetValue()));
		}
	}

	void Set(TSharedPtr<ILumProperty>&& InShared)
	{
		Empty();
		Shared = MoveTemp(InShared);
		Property = Shared.Get();
	}

	void Empty()
	{
		if (bIsInStorage)
		{
			Property->~ILumProperty();
			bIsInStorage = false;
		}
		Property = nullptr;
		Place.Reset();
		Shared.Reset();
	}

private:
	template <typename PropertyType>
	void Construct(const FLumValuePlaceRef& InPlace)
	{
		static_assert(sizeof(PropertyType) <= Size && alignof(PropertyType) <= Alignment, "The room is too small for the kind");
		Property = ::new (static_cast<void*>(Storage)) PropertyType(InPlace);
		bIsInStorage = true;
	}

	static constexpr SIZE_T Size = 64;
	static constexpr SIZE_T Alignment = alignof(void*);

	alignas(Alignment) uint8 Storage[Size];
	ILumProperty* Property = nullptr;
	bool bIsInStorage = false;
	TOptional<FLumValuePlace> Place;
	/** Where the property is one of those that are not made in the room. */
	TSharedPtr<ILumProperty> Shared;
};
