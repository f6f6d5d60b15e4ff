#pragma once

#include "Support/JsonText.h"
#include "Support/Refusal.h"

#include <httplib.h>

#include <map>
#include <string>

namespace VexelService
{

using FParameters = std::map<std::string, std::string>;

void SendJson(httplib::Response& Response, int Status, const FOrderedJson& Body);
void SendRefusal(httplib::Response& Response, const FRefusal& Refusal);

/**
 * Whether the request was addressed to this machine by its own name. A page of the web may have a name of its own resolve to it,
 * and would then be taken for one of the service's.
 */
bool IsAddressedToLoopback(const httplib::Request& Request);

/** The members of a query or a form body; a repeated member is ambiguous and refused. */
TOrRefusal<FParameters> ReadParameters(const httplib::Request& Request);

/** The members of a form body alone: what is in an address ends up in histories and logs. */
TOrRefusal<FParameters> ReadForm(const httplib::Request& Request);

FRefusal MissingParameter(const char* Key);

}
