#include "Http/CurlLibrary.h"

#include "CoreMinimal.h"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <openssl/crypto.h>
#include <openssl/ssl.h>

namespace
{
void WipeAndFree(void* Block)
{
	if (Block)
	{
		OPENSSL_cleanse(Block, malloc_usable_size(Block));
		std::free(Block);
	}
}

/** The C library's own would move the block and leave what was in it. */
void* Reallocate(void* Block, size_t NumBytes)
{
	void* const Moved = std::malloc(NumBytes);
	if (Moved && Block)
	{
		std::memcpy(Moved, Block, std::min(NumBytes, malloc_usable_size(Block)));
		WipeAndFree(Block);
	}
	return Moved;
}
}

void CurlLibrary::Start()
{
	static const CURLcode Started =
		curl_global_init_mem(CURL_GLOBAL_DEFAULT, &std::malloc, &WipeAndFree, &Reallocate, &strdup, &std::calloc);
	checkf(Started == CURLE_OK, TEXT("libcurl cannot be initialised: %s"), *FString(curl_easy_strerror(Started)));
}

CURLcode CurlLibrary::PrepareTls(CURL*, void* TlsContext, void*)
{
	SSL_CTX_set_options(static_cast<SSL_CTX*>(TlsContext), SSL_OP_CLEANSE_PLAINTEXT);
	return CURLE_OK;
}
