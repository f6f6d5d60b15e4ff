#pragma once

#include "Support/JsonText.h"
#include "Support/Refusal.h"

#include <cstddef>
#include <deque>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace VexelService
{

/** Takes error reports as an error-reporting service does, and keeps the last ones in memory. Any thread. */
class FReportStore
{
public:
	static constexpr std::size_t MaxReports = 100;

	/**
	 * Takes the event of an envelope, which is a line of JSON, then for each item a line of JSON that tells its length and so
	 * many bytes. Answers the event's id, or why the envelope is none.
	 */
	TOrRefusal<std::string> Take(std::string_view Envelope);

	/** The newest last. */
	std::vector<FJson> GetReports() const;

private:
	mutable std::mutex Mutex;
	std::deque<FJson> Reports;
};

}
