#pragma once

#include "Containers/StringView.h"
#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "String/FormatStringSan.h"

#include <concepts>
#include <type_traits>

/**
 * Text under construction in a buffer that grows. The base is what functions take ("append to this"); TStringBuilder<N> is what
 * callers own. Not copyable; not for two threads.
 */
template <typename CharType>
class TStringBuilderBase
{
public:
	using ElementType = CharType;
	using ViewType = TStringView<CharType>;

	TStringBuilderBase() = default;
	TStringBuilderBase(CharType* Buffer, int32 Capacity)
		: Base(Buffer)
		, CurPos(Buffer)
		, End(Buffer + Capacity)
	{
	}
	virtual ~TStringBuilderBase()
	{
		if (bIsDynamic)
		{
			FMemory::Free(Base);
		}
	}
	UE_NONCOPYABLE(TStringBuilderBase)

	[[nodiscard]] int32 Len() const { return static_cast<int32>(CurPos - Base); }
	[[nodiscard]] CharType* GetData() { return Base; }
	[[nodiscard]] const CharType* GetData() const { return Base; }
	/** The text so far, terminated. Valid until the next change. */
	[[nodiscard]] const CharType* ToString() const
	{
		const_cast<TStringBuilderBase*>(this)->Terminate();
		return Base;
	}
	[[nodiscard]] const CharType* operator*() const { return ToString(); }
	[[nodiscard]] ViewType ToView() const { return ViewType(Base, Len()); }
	[[nodiscard]] const CharType LastChar() const { return CurPos[-1]; }

	void Reset() { CurPos = Base; }
	void Reserve(int32 NewCapacity) { EnsureAdditionalCapacity(NewCapacity - Len()); }
	/** Adds room that the caller fills; answers where it begins. */
	int32 AddUninitialized(int32 Count)
	{
		EnsureAdditionalCapacity(Count);
		const int32 Old = Len();
		CurPos += Count;
		return Old;
	}
	void AddZeroed(int32 Count) { FMemory::Memzero(Base + AddUninitialized(Count), static_cast<SIZE_T>(Count) * sizeof(CharType)); }
	void RemoveSuffix(int32 Count) { CurPos -= Count; }

	TStringBuilderBase& AppendChar(CharType Char)
	{
		EnsureAdditionalCapacity(1);
		*CurPos++ = Char;
		return *this;
	}
	TStringBuilderBase& Append(CharType Char) { return AppendChar(Char); }
	TStringBuilderBase& Append(const CharType* Text, int32 Count)
	{
		EnsureAdditionalCapacity(Count);
		FMemory::Memcpy(CurPos, Text, static_cast<SIZE_T>(Count) * sizeof(CharType));
		CurPos += Count;
		return *this;
	}
	template <typename RangeType>
	requires(!std::is_same_v<std::remove_cvref_t<RangeType>, CharType> && std::convertible_to<const RangeType&, ViewType>)
		TStringBuilderBase& Append(const RangeType& Range)
	{
		const ViewType View(Range);
		return Append(View.GetData(), View.Len());
	}
	/** ANSI and UTF-8 text, converted. */
	TStringBuilderBase& AppendAnsi(FAnsiStringView Text)
	{
		if constexpr (sizeof(CharType) == 1)
		{
			return Append(reinterpret_cast<const CharType*>(Text.GetData()), Text.Len());
		}
		else
		{
			return AppendWidened(reinterpret_cast<const UTF8CHAR*>(Text.GetData()), Text.Len());
		}
	}
	TStringBuilderBase& AppendAnsi(const ANSICHAR* Text, int32 Count) { return AppendAnsi(FAnsiStringView(Text, Count)); }
	TStringBuilderBase& AppendUtf8(FUtf8StringView Text)
	{
		return AppendAnsi(FAnsiStringView(reinterpret_cast<const ANSICHAR*>(Text.GetData()), Text.Len()));
	}

	template <typename... Types>
	TStringBuilderBase& Appendf(UE::Core::TCheckedFormatString<TCHAR, Types...> Format, Types... Args) requires(
		std::is_same_v<CharType, TCHAR>)
	{
		const UE::Core::FFormatArgument Arguments[] = {UE::Core::FFormatArgument(Args)..., UE::Core::FFormatArgument()};
		UE::Core::FormatTo(*this, Format.GetFormatString(), Arguments, static_cast<int32>(sizeof...(Types)));
		return *this;
	}

	/** Appends the elements with a delimiter between them. */
	template <typename RangeType, typename DelimiterType>
	TStringBuilderBase& Join(const RangeType& Range, const DelimiterType& Delimiter)
	{
		bool bFirst = true;
		for (const auto& Element : Range)
		{
			if (!bFirst)
			{
				*this << Delimiter;
			}
			bFirst = false;
			*this << Element;
		}
		return *this;
	}

	void InsertAt(int32 Position, ViewType Text) { ReplaceAt(Position, 0, Text); }
	void RemoveAt(int32 Position, int32 Count) { ReplaceAt(Position, Count, ViewType()); }
	void Prepend(ViewType Text) { ReplaceAt(0, 0, Text); }
	/** `Text` must not be a part of this builder. */
	void ReplaceAt(int32 Position, int32 Count, ViewType Text)
	{
		const int32 Tail = Len() - Position - Count;
		if (Text.Len() > Count)
		{
			EnsureAdditionalCapacity(Text.Len() - Count);
		}
		FMemory::Memmove(Base + Position + Text.Len(), Base + Position + Count, static_cast<SIZE_T>(Tail) * sizeof(CharType));
		FMemory::Memcpy(Base + Position, Text.GetData(), Text.NumBytes());
		CurPos = Base + Position + Text.Len() + Tail;
	}

	[[nodiscard]] const CharType* begin() const { return Base; }
	[[nodiscard]] const CharType* end() const { return CurPos; }

protected:
	void EnsureAdditionalCapacity(int32 Count)
	{
		// One more is kept for ToString()'s terminator.
		if (End - CurPos <= Count)
		{
			Extend(static_cast<SIZE_T>(Count) + 1);
		}
	}

private:
	void Terminate()
	{
		if (CurPos == End)
		{
			Extend(1);
		}
		*CurPos = 0;
	}

	void Extend(SIZE_T ExtraCapacity)
	{
		const SIZE_T OldLen = static_cast<SIZE_T>(CurPos - Base);
		const SIZE_T OldCapacity = static_cast<SIZE_T>(End - Base);
		const SIZE_T Grown = OldCapacity + OldCapacity / 2 + 32;
		const SIZE_T Needed = OldLen + ExtraCapacity;
		const SIZE_T NewCapacity = Grown > Needed ? Grown : Needed;
		checkf(NewCapacity < 0x7fffffff, TEXT("A string builder would pass 2^31 characters"));
		CharType* NewBase = static_cast<CharType*>(FMemory::Malloc(NewCapacity * sizeof(CharType)));
		FMemory::Memcpy(NewBase, Base, OldLen * sizeof(CharType));
		if (bIsDynamic)
		{
			FMemory::Free(Base);
		}
		Base = NewBase;
		CurPos = NewBase + OldLen;
		End = NewBase + NewCapacity;
		bIsDynamic = true;
	}

	TStringBuilderBase& AppendWidened(const UTF8CHAR* Text, int32 Count);

	CharType* Base = nullptr;
	CharType* CurPos = nullptr;
	CharType* End = nullptr;
	bool bIsDynamic = false;
};

template <>
CORE_API TStringBuilderBase<TCHAR>& TStringBuilderBase<TCHAR>::AppendWidened(const UTF8CHAR* Text, int32 Count);

template <typename CharType, int32 BufferSize>
class TStringBuilderWithBuffer : public TStringBuilderBase<CharType>
{
public:
	TStringBuilderWithBuffer()
		: TStringBuilderBase<CharType>(Buffer, BufferSize)
	{
	}

private:
	CharType Buffer[BufferSize];
};

namespace UE::Core::Private
{
CORE_API void AppendSigned(TStringBuilderBase<TCHAR>& Builder, int64 Value);
CORE_API void AppendUnsigned(TStringBuilderBase<TCHAR>& Builder, uint64 Value);
CORE_API void AppendDouble(TStringBuilderBase<TCHAR>& Builder, double Value);
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, TCHAR Char)
{
	return Builder.AppendChar(Char);
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, ANSICHAR Char)
{
	return Builder.AppendChar(static_cast<TCHAR>(Char));
}

template <typename TextType>
requires(!std::is_arithmetic_v<TextType> && std::convertible_to<const TextType&, FStringView>)
	FStringBuilderBase&
	operator<<(FStringBuilderBase& Builder, const TextType& Text)
{
	return Builder.Append(Text);
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, FAnsiStringView Text)
{
	return Builder.AppendAnsi(Text);
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, const ANSICHAR* Text)
{
	return Builder.AppendAnsi(FAnsiStringView(Text));
}

inline FStringBuilderBase& operator<<(FStringBuilderBase& Builder, FUtf8StringView Text)
{
	return Builder.AppendUtf8(Text);
}

template <std::integral IntegerType>
requires(!std::is_same_v<IntegerType, TCHAR> && !std::is_same_v<IntegerType, ANSICHAR> && !std::is_same_v<IntegerType, bool>)
	FStringBuilderBase&
	operator<<(FStringBuilderBase& Builder, IntegerType Value)
{
	if constexpr (std::is_signed_v<IntegerType>)
	{
		UE::Core::Private::AppendSigned(Builder, Value);
	}
	else
	{
		UE::Core::Private::AppendUnsigned(Builder, Value);
	}
	return Builder;
}

template <std::floating_point FloatType>
FStringBuilderBase& operator<<(FStringBuilderBase& Builder, FloatType Value)
{
	UE::Core::Private::AppendDouble(Builder, static_cast<double>(Value));
	return Builder;
}

template <typename TextType>
requires(!std::is_arithmetic_v<TextType> && std::convertible_to<const TextType&, FAnsiStringView>)
	FAnsiStringBuilderBase&
	operator<<(FAnsiStringBuilderBase& Builder, const TextType& Text)
{
	return Builder.Append(Text);
}

inline FAnsiStringBuilderBase& operator<<(FAnsiStringBuilderBase& Builder, ANSICHAR Char)
{
	return Builder.AppendChar(Char);
}

template <typename TextType>
requires(!std::is_arithmetic_v<TextType> && std::convertible_to<const TextType&, FUtf8StringView>)
	FUtf8StringBuilderBase&
	operator<<(FUtf8StringBuilderBase& Builder, const TextType& Text)
{
	return Builder.Append(Text);
}
