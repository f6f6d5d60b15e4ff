#include "Server/ServiceConfig.h"

#include "Support/JsonText.h"

#include <cmath>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>

namespace VexelService
{

namespace
{

using FReadMember = std::function<bool(const FJson&)>;
using FReaders = std::map<std::string, FReadMember>;

constexpr double SecondsPerYear = 365.0 * 24 * 3600;

FReadMember Number(double Minimum, double Maximum, std::function<void(double)> Store)
{
	return [=](const FJson& Value)
	{
		if (!Value.is_number() || Value.get<double>() < Minimum || Value.get<double>() > Maximum)
		{
			return false;
		}
		Store(Value.get<double>());
		return true;
	};
}

FReadMember Text(std::string& Target)
{
	return [&Target](const FJson& Value)
	{
		if (Value.is_string())
		{
			Target = Value.get<std::string>();
		}
		return Value.is_string();
	};
}

FReadMember TextList(std::vector<std::string>& Target)
{
	return [&Target](const FJson& Value)
	{
		if (!Value.is_array())
		{
			return false;
		}
		Target.clear();
		for (const FJson& Item : Value)
		{
			if (!Item.is_string())
			{
				return false;
			}
			Target.push_back(Item.get<std::string>());
		}
		return true;
	};
}

// The key of the first member that is unknown or refused; empty when all are read.
std::string ReadMembers(const FJson& Object, const FReaders& Readers)
{
	for (const auto& [Key, Value] : Object.items())
	{
		const auto Reader = Readers.find(Key);
		if (Reader == Readers.end() || !Reader->second(Value))
		{
			return Key;
		}
	}
	return {};
}

template <typename TDuration>
std::function<void(double)> StoreTime(TDuration& Target, double UnitsInOne)
{
	return [&Target, UnitsInOne](double Amount)
	{ Target = TDuration(static_cast<std::int64_t>(std::llround(Amount * UnitsInOne))); };
}

FReadMember User(FUserProfile& Profile)
{
	return [&Profile](const FJson& Value)
	{
		const FReaders Readers = {
			{"name", Text(Profile.Name)},
			{"email", Text(Profile.Email)},
			{"credits", Number(0, 1e9, [&Profile](double Count)
							{ Profile.Credits = static_cast<int>(Count); })},
			{"max_credits", Number(0, 1e9, [&Profile](double Count)
								{ Profile.MaxCredits = static_cast<int>(Count); })},
			{"features", TextList(Profile.Features)},
		};
		return Value.is_object() && ReadMembers(Value, Readers).empty();
	};
}

FReadMember Decision(ELoginDecision& Target)
{
	return [&Target](const FJson& Value)
	{
		static const std::map<std::string, ELoginDecision> Words = {
			{"ask", ELoginDecision::Ask}, {"approve", ELoginDecision::Approve}, {"deny", ELoginDecision::Deny}};
		const auto Found = Value.is_string() ? Words.find(Value.get<std::string>()) : Words.end();
		if (Found != Words.end())
		{
			Target = Found->second;
		}
		return Found != Words.end();
	};
}

FReadMember Login(FLoginConfig& Config)
{
	return [&Config](const FJson& Value)
	{
		const FReaders Readers = {
			{"request_seconds", Number(1, 3600, StoreTime(Config.RequestLifetime, 1))},
			{"code_seconds", Number(0, 3600, StoreTime(Config.CodeLifetime, 1))},
			{"delay_milliseconds", Number(0, 60'000, StoreTime(Config.Delay, 1))},
			{"decision", Decision(Config.Decision)},
			{"failing_paths", TextList(Config.FailingPaths)},
		};
		return Value.is_object() && ReadMembers(Value, Readers).empty();
	};
}

}

TOrRefusal<FServiceConfig> LoadServiceConfig(const std::filesystem::path& File)
{
	std::ifstream Stream(File, std::ios::binary);
	const std::string Document{std::istreambuf_iterator<char>(Stream), std::istreambuf_iterator<char>()};
	if (!Stream)
	{
		return FRefusal{500, "cannot read the configuration " + File.string()};
	}
	const std::optional<FJson> Object = ParseJson(Document);
	if (!Object || !Object->is_object())
	{
		return FRefusal{500, "the configuration " + File.string() + " is not a JSON object"};
	}

	FServiceConfig Config;
	const FReaders Readers = {
		{"access_token_seconds", Number(1, SecondsPerYear, StoreTime(Config.AccessTokenLifetime, 1))},
		{"refresh_token_seconds", Number(1, SecondsPerYear, StoreTime(Config.RefreshTokenLifetime, 1))},
		{"refresh_grace_seconds", Number(0, 3600, StoreTime(Config.RefreshTokenGrace, 1))},
		{"tool_timeout_seconds", Number(0.001, 3600, StoreTime(Config.ToolTimeout, 1000))},
		{"piece_delay_milliseconds", Number(0, 1000, StoreTime(Config.PieceDelay, 1))},
		{"user", User(Config.User)},
		{"login", Login(Config.Login)},
	};
	const std::string BadKey = ReadMembers(*Object, Readers);
	if (!BadKey.empty())
	{
		return FRefusal{500, "the configuration " + File.string() + " has a bad member \"" + BadKey + "\""};
	}
	return Config;
}

}
