#include "Support/JsonText.h"

namespace VexelService
{

namespace
{

// The library's own functions on a parsed value recurse, so the depth is bounded before anything is built.
bool IsShallow(std::string_view Text)
{
	std::size_t Depth = 0;
	bool bInString = false;
	for (std::size_t Index = 0; Index < Text.size(); ++Index)
	{
		const char Character = Text[Index];
		if (bInString)
		{
			if (Character == '\\')
			{
				++Index;
			}
			else if (Character == '"')
			{
				bInString = false;
			}
			continue;
		}
		if (Character == '"')
		{
			bInString = true;
		}
		else if (Character == '{' || Character == '[')
		{
			if (++Depth > MaxJsonDepth)
			{
				return false;
			}
		}
		else if ((Character == '}' || Character == ']') && Depth > 0)
		{
			--Depth;
		}
	}
	return true;
}

template <typename TJson>
std::string OneLine(const TJson& Value)
{
	return Value.dump(-1, ' ', false, TJson::error_handler_t::replace);
}

}

std::optional<FJson> ParseJson(std::string_view Text)
{
	if (!IsShallow(Text))
	{
		return std::nullopt;
	}
	FJson Value = FJson::parse(Text.begin(), Text.end(), nullptr, false);
	if (Value.is_discarded())
	{
		return std::nullopt;
	}
	return Value;
}

std::string JsonLine(const FJson& Value)
{
	return OneLine(Value);
}

std::string JsonLine(const FOrderedJson& Value)
{
	return OneLine(Value);
}

const FJson* FindMember(const FJson& Object, const char* Key)
{
	if (!Object.is_object())
	{
		return nullptr;
	}
	const auto Found = Object.find(Key);
	return Found == Object.end() ? nullptr : &*Found;
}

std::string TextMember(const FJson& Object, const char* Key)
{
	const FJson* const Member = FindMember(Object, Key);
	return Member && Member->is_string() ? Member->get_ref<const std::string&>() : std::string();
}

const FJson& ArrayMember(const FJson& Object, const char* Key)
{
	static const FJson Empty = FJson::array();
	const FJson* const Member = FindMember(Object, Key);
	return Member && Member->is_array() ? *Member : Empty;
}

}
