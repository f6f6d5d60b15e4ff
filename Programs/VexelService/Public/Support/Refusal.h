#pragma once

#include <optional>
#include <string>
#include <utility>

namespace VexelService
{

/** Why a request is not carried out: an HTTP status and the text that the caller reads under "detail". */
struct FRefusal
{
	int Status = 400;
	std::string Detail;
	/** The OAuth error code; only the token paths have one. */
	std::string Code = {};
};

/** A value or the refusal that stands in its place. */
template <typename T>
class [[nodiscard]] TOrRefusal
{
public:
	TOrRefusal(T InValue)
		: Value(std::move(InValue))
	{
	}

	TOrRefusal(FRefusal InRefusal)
		: Refusal(std::move(InRefusal))
	{
	}

	explicit operator bool() const { return Value.has_value(); }

	T& operator*() { return *Value; }
	const T& operator*() const { return *Value; }
	T* operator->() { return &*Value; }
	const T* operator->() const { return &*Value; }

	/** Only meaningful when there is no value. */
	const FRefusal& Error() const { return Refusal; }

private:
	std::optional<T> Value;
	FRefusal Refusal;
};

}
