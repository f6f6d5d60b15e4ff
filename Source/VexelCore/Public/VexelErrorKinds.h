#pragma once

#include "VexelError.h"

// The formatter takes the rows of the table for calls inside each other.
// clang-format off
/**
 * The tree of error kinds: kind, parent, title. A kind without a title is raised with one of the raising code's own.
 * The property model's kinds stand with the property model.
 */
#define VEXEL_ERROR_KINDS(Kind) \
	Kind(FVexelError_Task, FVexelError, "") \
	Kind(FVexelError_TaskAlreadyRunning, FVexelError_Task, "Task already running!") \
	Kind(FVexelError_TaskInvalid, FVexelError_Task, "Task is invalid!") \
	Kind(FVexelError_TaskNotFinished, FVexelError_Task, "Task not finished!") \
\
	Kind(FVexelError_Http, FVexelError, "") \
	Kind(FVexelError_HttpCancelled, FVexelError_Http, "") \
	Kind(FVexelError_HttpStatus, FVexelError_Http, "") \
	Kind(FVexelError_HttpStatusClientError, FVexelError_HttpStatus, "") \
	Kind(FVexelError_HttpUnauthorized, FVexelError_HttpStatusClientError, "") \
\
	Kind(FVexelError_SecureStorage, FVexelError, "Secure Storage Error") \
\
	Kind(FVexelError_Auth, FVexelError, "Authentication error") \
	Kind(FVexelError_Auth_AlreadyLoggedIn, FVexelError_Auth, "Already logged in") \
	Kind(FVexelError_Auth_Pkce, FVexelError_Auth, "PKCE generation error") \
	Kind(FVexelError_Auth_ClientId, FVexelError_Auth, "Client ID retrieval error") \
	Kind(FVexelError_Auth_BrowserLaunch, FVexelError_Auth, "Browser launch error") \
	Kind(FVexelError_Auth_HttpServer, FVexelError_Auth, "Local HTTP server error") \
	Kind(FVexelError_Auth_TokenRequest, FVexelError_Auth, "Token request error") \
	Kind(FVexelError_Auth_TokenRefresh, FVexelError_Auth, "Token refresh error") \
	Kind(FVexelError_Auth_Polling, FVexelError_Auth, "Polling error") \
	Kind(FVexelError_Auth_PollCancel, FVexelError_Auth, "Polling cancelled") \
	Kind(FVexelError_Auth_TokenProcessing, FVexelError_Auth, "Token processing error") \
	Kind(FVexelError_UserInfoFetch, FVexelError, "User info fetch error") \
	Kind(FVexelError_UserInfoGuid, FVexelError, "User info guid error") \
\
	Kind(FVexelError_BlueprintManipulationFailed, FVexelError, "Blueprint manipulation failed") \
\
	Kind(FVexelError_Tool, FVexelError, "") \
	Kind(FVexelError_ToolNotFound, FVexelError_Tool, "Tool not found") \
	Kind(FVexelError_ToolInvalidInput, FVexelError_Tool, "Invalid input") \
	Kind(FVexelError_ToolNoResponse, FVexelError_Tool, "This tool produces no response") \
	Kind(FVexelError_ToolCallFailed, FVexelError_Tool, "Tool call failed") \
	Kind(FVexelError_ChatRequestFailed, FVexelError, "Chat request failed") \
\
	Kind(FVexelError_Embed, FVexelError, "Embed Error") \
	Kind(FVexelError_EmbedInitialization, FVexelError_Embed, "Embed Initialization Error") \
	Kind(FVexelError_EmbedCancelled, FVexelError_Embed, "Embed Cancelled") \
	Kind(FVexelError_EmbedNotificationFailed, FVexelError_Embed, "Embed Notification Failed") \
	Kind(FVexelError_EmbedRefresh, FVexelError_Embed, "Embed Refresh Error") \
	Kind(FVexelError_EmbedGenerate, FVexelError_Embed, "") \
	Kind(FVexelError_EmbedGenerateResponseCorrupted, FVexelError_EmbedGenerate, "Embed generate response is corrupted") \
	Kind(FVexelError_EmbedLoad, FVexelError_Embed, "Embed Load Error") \
	Kind(FVexelError_EmbedLoadFileNotFound, FVexelError_EmbedLoad, "Embed database file not found") \
	Kind(FVexelError_EmbedLoadFileCorrupted, FVexelError_EmbedLoad, "Embed database file is corrupted") \
	Kind(FVexelError_EmbedLoadFileOutdated, FVexelError_EmbedLoad, "Embed database version is outdated") \
	Kind(FVexelError_EmbedLoadVersionInvalid, FVexelError_EmbedLoad, "Embed database version is invalid") \
	Kind(FVexelError_EmbedLoadReaderFailed, FVexelError_EmbedLoad, "Embed database reader failed") \
	Kind(FVexelError_EmbedSave, FVexelError_Embed, "Embed Save Error") \
	Kind(FVexelError_EmbedSaveUpToDate, FVexelError_EmbedSave, "Embed database is already up to date") \
	Kind(FVexelError_EmbedSaveCorruptedEntry, FVexelError_EmbedSave, "Embed database entry is corrupted") \
	Kind(FVexelError_EmbedSaveWriterFailed, FVexelError_EmbedSave, "") \
	Kind(FVexelError_EmbedSearch, FVexelError_Embed, "") \
	Kind(FVexelError_EmbedSearchInvalidNum, FVexelError_EmbedSearch, "Embed search num is invalid") \
	Kind(FVexelError_EmbedSearchInvalidQuery, FVexelError_EmbedSearch, "Embed search query is invalid") \
	Kind(FVexelError_EmbedSearchInvalidEmbed, FVexelError_EmbedSearch, "Embed search embedding is invalid") \
	Kind(FVexelError_EmbedSearchCorruptedEntry, FVexelError_EmbedSearch, "Embed search entry is corrupted") \
\
	Kind(FVexelError_StatusCheck, FVexelError, "Failed to check system status") \
	Kind(FVexelError_StatusCheckInvalidResponse, FVexelError_StatusCheck, "Invalid response received from status check") \
	Kind(FVexelError_ProjectAnalysisFailed, FVexelError, "Project analysis failed") \
	Kind(FVexelError_UpdateCheckFailed, FVexelError, "Update check failed") \
	Kind(FVexelError_ModelGenerator, FVexelError, "") \
	Kind(FVexelError_ModelGeneratorGenerationFailed, FVexelError_ModelGenerator, "Model generation failed") \
	Kind(FVexelError_ModelGeneratorDownloadFailed, FVexelError_ModelGenerator, "Failed to download generated model")
// clang-format on

VEXEL_ERROR_KINDS(VEXEL_DECLARE_ERROR_KIND)
