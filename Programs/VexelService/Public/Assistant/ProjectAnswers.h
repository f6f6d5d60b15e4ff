#pragma once

#include "Assistant/ProjectReader.h"
#include "Support/JsonText.h"

#include <string>
#include <string_view>

namespace VexelService
{

/** Answers in Markdown from what the general tools give; what a reply lacks is left out. */

/** What the open project is and has, of "get_project". */
std::string DescribeProject(const FJson& Project);

/** A list of assets; Kind is the user's word for them. */
std::string DescribeAssets(const FAssetList& Assets, std::string_view Kind);

/** What an asset is and where, of "get_asset_info". */
std::string DescribeAsset(const FJson& Info);

/** What an asset refers to, of "get_asset_info". */
std::string DescribeDependencies(const FJson& Info);

/** A file's text, of "get_source" with a file. */
std::string DescribeFile(const FJson& Source);

/** What a name declares, of "get_source" with a symbol. */
std::string DescribeDeclarations(const FJson& Source);

}
