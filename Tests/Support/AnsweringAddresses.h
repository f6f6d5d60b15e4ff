#pragma once

#include "RawHttpClient.h"

#include <ifaddrs.h>
#include <set>

/** At which addresses of this machine's interfaces a port takes connections. */
inline std::set<std::string> FindAnsweringAddresses(int32 Port)
{
	std::set<std::string> Answering;
	ifaddrs* Interfaces = nullptr;
	if (getifaddrs(&Interfaces) != 0)
	{
		return Answering;
	}
	for (const ifaddrs* Interface = Interfaces; Interface; Interface = Interface->ifa_next)
	{
		char Text[INET6_ADDRSTRLEN] = {};
		if (Interface->ifa_addr && Interface->ifa_addr->sa_family == AF_INET)
		{
			const sockaddr_in& Address = *reinterpret_cast<const sockaddr_in*>(Interface->ifa_addr);
			inet_ntop(AF_INET, &Address.sin_addr, Text, sizeof(Text));
			if (FRawClient(Port, Address.sin_addr.s_addr).bConnected)
			{
				Answering.insert(Text);
			}
		}
		else if (Interface->ifa_addr && Interface->ifa_addr->sa_family == AF_INET6)
		{
			const sockaddr_in6& Address = *reinterpret_cast<const sockaddr_in6*>(Interface->ifa_addr);
			inet_ntop(AF_INET6, &Address.sin6_addr, Text, sizeof(Text));
			if (FRawClient(Port, Address.sin6_addr, Address.sin6_scope_id).bConnected)
			{
				Answering.insert(Text);
			}
		}
	}
	freeifaddrs(Interfaces);
	return Answering;
}
