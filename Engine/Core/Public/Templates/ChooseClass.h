#pragma once

template <bool Predicate, typename TrueClass, typename FalseClass>
class TChooseClass;

template <typename TrueClass, typename FalseClass>
class TChooseClass<true, TrueClass, FalseClass>
{
public:
	using Result = TrueClass;
};

template <typename TrueClass, typename FalseClass>
class TChooseClass<false, TrueClass, FalseClass>
{
public:
	using Result = FalseClass;
};
