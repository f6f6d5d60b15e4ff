#pragma once

#include "CoreTypes.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTypeTraits.h"

/** What a set must know of its elements' keys, for classes of key functions to derive from. */
template <typename ElementType, typename InKeyType, bool bInAllowDuplicateKeys = false>
struct BaseKeyFuncs
{
	using KeyType = InKeyType;
	using KeyInitType = typename TCallTraits<InKeyType>::ParamType;
	using ElementInitType = typename TCallTraits<ElementType>::ParamType;

	enum
	{
		bAllowDuplicateKeys = bInAllowDuplicateKeys
	};
};

/** The element is its own key, compared by == and hashed by GetTypeHash. */
template <typename ElementType, bool bInAllowDuplicateKeys>
struct DefaultKeyFuncs : BaseKeyFuncs<ElementType, ElementType, bInAllowDuplicateKeys>
{
	using KeyInitType = typename TTypeTraits<ElementType>::ConstPointerType;
	using ElementInitType = const ElementType&;

	static KeyInitType GetSetKey(ElementInitType Element) { return Element; }
	template <typename ComparableKey>
	static bool Matches(KeyInitType A, const ComparableKey& B)
	{
		return A == B;
	}
	template <typename ComparableKey>
	static uint32 GetKeyHash(const ComparableKey& Key)
	{
		return GetTypeHash(Key);
	}
};
