#include "Server/ReportStore.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

namespace VexelService
{

namespace
{

constexpr std::size_t EventIdLength = 32;

// Cuts a line off the front; all of it when there is no line end.
std::string_view CutLine(std::string_view& Text)
{
	const std::size_t End = std::min(Text.find('\n'), Text.size());
	const std::string_view Line = Text.substr(0, End);
	Text.remove_prefix(std::min(End + 1, Text.size()));
	return Line;
}

bool IsEventId(const std::string& Id)
{
	return Id.size() == EventIdLength && Id.find_first_not_of("0123456789abcdef") == std::string::npos;
}

FRefusal Bad(std::string Detail)
{
	return FRefusal{400, std::move(Detail)};
}

// Cuts an item's bytes off the front: as many as its header says, or the rest of the line when it says nothing.
std::optional<std::string_view> CutPayload(const FJson& Header, std::string_view& Text)
{
	const FJson* const Length = FindMember(Header, "length");
	if (!Length)
	{
		return CutLine(Text);
	}
	if (!Length->is_number_unsigned() || Length->get<std::uint64_t>() > Text.size())
	{
		return std::nullopt;
	}
	const std::string_view Payload = Text.substr(0, Length->get<std::size_t>());
	Text.remove_prefix(Payload.size());
	if (!Text.empty() && Text.front() != '\n')
	{
		return std::nullopt;
	}
	Text.remove_prefix(Text.empty() ? 0 : 1);
	return Payload;
}

}

TOrRefusal<std::string> FReportStore::Take(std::string_view Envelope)
{
	const std::optional<FJson> Header = ParseJson(CutLine(Envelope));
	const std::string Id = Header ? TextMember(*Header, "event_id") : std::string();
	if (!IsEventId(Id))
	{
		return Bad("The envelope's header has no event_id of 32 hexadecimal digits.");
	}
	std::optional<FJson> Event;
	while (!Envelope.empty())
	{
		const std::optional<FJson> Item = ParseJson(CutLine(Envelope));
		if (!Item || !Item->is_object())
		{
			return Bad("The header of an item is no JSON object.");
		}
		const std::optional<std::string_view> Payload = CutPayload(*Item, Envelope);
		if (!Payload)
		{
			return Bad("An item is not as long as its header says.");
		}
		if (TextMember(*Item, "type") == "event")
		{
			Event = ParseJson(*Payload);
		}
	}
	if (!Event || TextMember(*Event, "event_id") != Id)
	{
		return Bad("The envelope has no event of its event_id.");
	}
	const std::lock_guard Lock(Mutex);
	if (Reports.size() == MaxReports)
	{
		Reports.pop_front();
	}
	Reports.push_back(std::move(*Event));
	return Id;
}

std::vector<FJson> FReportStore::GetReports() const
{
	const std::lock_guard Lock(Mutex);
	return {Reports.begin(), Reports.end()};
}

}
