#pragma once

#include "CoreTypes.h"

#include <array>
#include <new>
#include <tuple>
#include <type_traits>
#include <utility>

namespace UE::Core
{
/** The parameter memory of one call of a reflected function: parameters at their natural alignment in order, the return value last. */
template <class Ret, class... ParamTypes>
class TScriptFrame
{
	struct FNothing
	{
	};
	using FReturn = std::conditional_t<std::is_void_v<Ret>, FNothing, std::remove_cvref_t<Ret>>;
	using FStored = std::tuple<std::remove_cvref_t<ParamTypes>..., FReturn>;
	static constexpr SIZE_T Num = sizeof...(ParamTypes);

	static constexpr std::array<SIZE_T, Num + 2> MakeOffsets()
	{
		std::array<SIZE_T, Num + 2> Result{};
		SIZE_T End = 0;
		SIZE_T Index = 0;
		const auto Place = [&](SIZE_T Size, SIZE_T Alignment)
		{
			End = (End + Alignment - 1) / Alignment * Alignment;
			Result[Index++] = End;
			End += Size;
		};
		(Place(sizeof(std::remove_cvref_t<ParamTypes>), alignof(std::remove_cvref_t<ParamTypes>)), ...);
		Place(sizeof(FReturn), alignof(FReturn));
		Result[Index] = End;
		return Result;
	}
	static constexpr std::array<SIZE_T, Num + 2> Offsets = MakeOffsets();

	template <SIZE_T Index>
	auto& Get()
	{
		return *std::launder(reinterpret_cast<std::tuple_element_t<Index, FStored>*>(Memory + Offsets[Index]));
	}

	template <SIZE_T Index, class ParamType>
	void Store(const ParamType& Param)
	{
		::new (static_cast<void*>(Memory + Offsets[Index])) std::tuple_element_t<Index, FStored>(Param);
	}

	template <SIZE_T Index>
	void Destroy()
	{
		std::destroy_at(&Get<Index>());
	}

	template <class ParamType, SIZE_T Index>
	void CopyBack(std::remove_reference_t<ParamType>& Param)
	{
		if constexpr (std::is_lvalue_reference_v<ParamType> && !std::is_const_v<std::remove_reference_t<ParamType>>)
		{
			Param = Get<Index>();
		}
	}

public:
	explicit TScriptFrame(const std::remove_reference_t<ParamTypes>&... Params)
	{
		StoreAll(std::make_index_sequence<Num>(), Params...);
		::new (static_cast<void*>(Memory + Offsets[Num])) FReturn();
	}
	TScriptFrame(const TScriptFrame&) = delete;
	TScriptFrame& operator=(const TScriptFrame&) = delete;
	~TScriptFrame() { DestroyAll(std::make_index_sequence<Num + 1>()); }

	void* GetMemory() { return Memory; }

	/** Copies what the function left in its reference parameters back to the caller's variables. */
	void CopyOutParameters(std::remove_reference_t<ParamTypes>&... Params) { CopyBackAll(std::make_index_sequence<Num>(), Params...); }

	Ret TakeReturnValue()
	{
		if constexpr (!std::is_void_v<Ret>)
		{
			return std::move(Get<Num>());
		}
	}

private:
	template <SIZE_T... Indices>
	void StoreAll(std::index_sequence<Indices...>, const std::remove_reference_t<ParamTypes>&... Params)
	{
		(Store<Indices>(Params), ...);
	}
	template <SIZE_T... Indices>
	void CopyBackAll(std::index_sequence<Indices...>, std::remove_reference_t<ParamTypes>&... Params)
	{
		(CopyBack<ParamTypes, Indices>(Params), ...);
	}
	template <SIZE_T... Indices>
	void DestroyAll(std::index_sequence<Indices...>)
	{
		(Destroy<Indices>(), ...);
	}

	alignas(16) uint8 Memory[Offsets[Num + 1]];
};
}
