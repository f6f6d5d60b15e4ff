#pragma once

template <bool Predicate, typename Result = void>
class TEnableIf;

template <typename Result>
class TEnableIf<true, Result>
{
public:
	using type = Result;
	using Type = Result;
};

template <typename Result>
class TEnableIf<false, Result>
{
};

/** Shows `This` only if the condition holds, and keeps it from taking part in template argument deduction. */
template <bool Predicate, typename This>
class TLazyEnableIf;

template <typename This>
class TLazyEnableIf<true, This>
{
public:
	using Type = typename This::Type;
};

template <typename This>
class TLazyEnableIf<false, This>
{
};
