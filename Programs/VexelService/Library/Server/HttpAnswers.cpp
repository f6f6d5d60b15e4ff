#include "Server/HttpAnswers.h"

namespace VexelService
{

namespace
{

constexpr const char* JsonType = "application/json";
constexpr const char* FormType = "application/x-www-form-urlencoded";

}

void SendJson(httplib::Response& Response, int Status, const FOrderedJson& Body)
{
	Response.status = Status;
	Response.set_content(JsonLine(Body), JsonType);
}

void SendRefusal(httplib::Response& Response, const FRefusal& Refusal)
{
	FOrderedJson Body = {{"detail", Refusal.Detail}};
	if (!Refusal.Code.empty())
	{
		Body["error"] = Refusal.Code;
		Body["error_description"] = Refusal.Detail;
	}
	if (Refusal.Status == 401)
	{
		Response.set_header("WWW-Authenticate", "Bearer");
	}
	SendJson(Response, Refusal.Status, Body);
}

bool IsAddressedToLoopback(const httplib::Request& Request)
{
	const std::string Host = Request.get_header_value("Host");
	const std::string Name = Host.substr(0, Host.find(':', Host.rfind(']') == std::string::npos ? 0 : Host.rfind(']')));
	return Name == "127.0.0.1" || Name == "localhost" || Name == "[::1]";
}

TOrRefusal<FParameters> ReadParameters(const httplib::Request& Request)
{
	FParameters Parameters;
	for (const auto& [Key, Value] : Request.params)
	{
		if (!Parameters.emplace(Key, Value).second)
		{
			return FRefusal{400, "\"" + Key + "\" is given twice.", "invalid_request"};
		}
	}
	return Parameters;
}

TOrRefusal<FParameters> ReadForm(const httplib::Request& Request)
{
	if (Request.target.find('?') != std::string::npos)
	{
		return FRefusal{400, "Tokens are not read from the address.", "invalid_request"};
	}
	if (Request.get_header_value("Content-Type").rfind(FormType, 0) != 0)
	{
		return FRefusal{400, "The body must be form-encoded.", "invalid_request"};
	}
	return ReadParameters(Request);
}

FRefusal MissingParameter(const char* Key)
{
	return {400, std::string("\"") + Key + "\" is missing.", "invalid_request"};
}

}
