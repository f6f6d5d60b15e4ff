#pragma once

#include "CoreTypes.h"

class FString;

template <typename CharType>
class TStringView;
using FStringView = TStringView<TCHAR>;
using FAnsiStringView = TStringView<ANSICHAR>;
using FWideStringView = TStringView<WIDECHAR>;
using FUtf8StringView = TStringView<UTF8CHAR>;

template <typename CharType>
class TStringBuilderBase;
using FStringBuilderBase = TStringBuilderBase<TCHAR>;
using FAnsiStringBuilderBase = TStringBuilderBase<ANSICHAR>;
using FWideStringBuilderBase = TStringBuilderBase<WIDECHAR>;
using FUtf8StringBuilderBase = TStringBuilderBase<UTF8CHAR>;

template <typename CharType, int32 BufferSize>
class TStringBuilderWithBuffer;
template <int32 BufferSize>
using TStringBuilder = TStringBuilderWithBuffer<TCHAR, BufferSize>;
template <int32 BufferSize>
using TAnsiStringBuilder = TStringBuilderWithBuffer<ANSICHAR, BufferSize>;
template <int32 BufferSize>
using TWideStringBuilder = TStringBuilderWithBuffer<WIDECHAR, BufferSize>;
template <int32 BufferSize>
using TUtf8StringBuilder = TStringBuilderWithBuffer<UTF8CHAR, BufferSize>;
