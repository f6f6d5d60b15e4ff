#pragma once

/** Whether this was built with a sanitizer that frees memory in its own way: later, or with copies of its own. */
#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define VEXEL_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define VEXEL_SANITIZED 1
#endif
#endif
#ifndef VEXEL_SANITIZED
#define VEXEL_SANITIZED 0
#endif
