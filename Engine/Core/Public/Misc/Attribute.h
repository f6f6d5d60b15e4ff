#pragma once

#include "CoreTypes.h"
#include "Templates/Function.h"
#include "Templates/UnrealTemplate.h"

#include <type_traits>

/** A value, or a function that is asked for it each time. */
template <typename ObjectType>
class TAttribute
{
public:
	using FGetter = TFunction<ObjectType()>;

	TAttribute() = default;
	template <typename OtherType>
	requires(std::is_convertible_v<OtherType, ObjectType> && !std::is_same_v<std::decay_t<OtherType>, TAttribute>)
		TAttribute(OtherType&& InValue)
		: Value(Forward<OtherType>(InValue))
		, bIsSet(true)
	{
	}

	static TAttribute CreateLambda(FGetter InGetter)
	{
		TAttribute Attribute;
		Attribute.BindLambda(MoveTemp(InGetter));
		return Attribute;
	}

	void Set(ObjectType NewValue)
	{
		Value = MoveTemp(NewValue);
		Getter = FGetter();
		bIsSet = true;
	}
	void BindLambda(FGetter InGetter)
	{
		Getter = MoveTemp(InGetter);
		bIsSet = true;
	}
	bool IsSet() const { return bIsSet; }
	bool IsBound() const { return static_cast<bool>(Getter); }
	ObjectType Get() const { return Getter ? Getter() : Value; }
	ObjectType Get(const ObjectType& DefaultValue) const { return bIsSet ? Get() : DefaultValue; }

private:
	ObjectType Value{};
	FGetter Getter;
	bool bIsSet = false;
};
