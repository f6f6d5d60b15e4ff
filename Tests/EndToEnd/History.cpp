#include "History.h"

#include <fstream>

std::vector<nlohmann::json> ReadHistory(const std::filesystem::path& Project)
{
	std::vector<nlohmann::json> Conversations;
	const std::filesystem::path Directory = Project / "Saved/ChatHistories";
	std::error_code Missing;
	for (const auto& Entry : std::filesystem::directory_iterator(Directory, Missing))
	{
		std::ifstream Stream(Entry.path(), std::ios::binary);
		nlohmann::json Document = nlohmann::json::parse(Stream, nullptr, false);
		if (Document.is_object() && Document.contains("ChatId"))
		{
			Conversations.push_back(std::move(Document));
		}
	}
	return Conversations;
}
