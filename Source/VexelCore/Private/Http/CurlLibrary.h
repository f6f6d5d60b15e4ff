#pragma once

#include <curl/curl.h>

/** libcurl as a whole, in this process. */
namespace CurlLibrary
{
/**
 * Starts libcurl, before its first use; later calls do nothing. From then on it overwrites every block of memory that it gives up:
 * its buffers hold tokens in headers and bodies. Any thread.
 */
void Start();

/** Has TLS overwrite what it decrypts once that was read; the callback of CURLOPT_SSL_CTX_FUNCTION. */
CURLcode PrepareTls(CURL* Handle, void* TlsContext, void* Unused);
}
