#pragma once

#include "CoreMinimal.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <string>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

/** A raw connection to a port of an address; it fails a read after three seconds. */
class FRawClient
{
public:
	explicit FRawClient(int32 Port, in_addr_t Address = htonl(INADDR_LOOPBACK))
		: Socket(socket(AF_INET, SOCK_STREAM, 0))
	{
		sockaddr_in To = {};
		To.sin_family = AF_INET;
		To.sin_addr.s_addr = Address;
		To.sin_port = htons(uint16(Port));
		Connect(To);
	}
	FRawClient(int32 Port, const in6_addr& Address, uint32 Interface = 0)
		: Socket(socket(AF_INET6, SOCK_STREAM, 0))
	{
		sockaddr_in6 To = {};
		To.sin6_family = AF_INET6;
		To.sin6_addr = Address;
		To.sin6_port = htons(uint16(Port));
		To.sin6_scope_id = Interface;
		Connect(To);
	}
	~FRawClient() { close(Socket); }

	/** Sends bytes and answers all that comes until the other side closes. */
	std::string Ask(const std::string& Bytes) const
	{
		std::string Answer;
		char Buffer[4096];
		size_t NumSent = 0;
		while (NumSent < Bytes.size())
		{
			const ssize_t Num = send(Socket, Bytes.data() + NumSent, Bytes.size() - NumSent, MSG_NOSIGNAL);
			if (Num <= 0)
			{
				break;
			}
			NumSent += size_t(Num);
		}
		for (ssize_t Num = 0; (Num = recv(Socket, Buffer, sizeof(Buffer), 0)) > 0;)
		{
			Answer.append(Buffer, size_t(Num));
		}
		return Answer;
	}

	/** Whether the other side has ended the connection; waits for it as long as for any read. */
	bool WasClosed() const
	{
		char Buffer[4096];
		ssize_t Num = 0;
		while ((Num = recv(Socket, Buffer, sizeof(Buffer), 0)) > 0)
		{
		}
		return Num == 0;
	}

	const int Socket;
	bool bConnected = false;

private:
	template <typename AddressType>
	void Connect(const AddressType& To)
	{
		const timeval Longest{3, 0};
		setsockopt(Socket, SOL_SOCKET, SO_RCVTIMEO, &Longest, sizeof(Longest));
		bConnected = connect(Socket, reinterpret_cast<const sockaddr*>(&To), sizeof(To)) == 0;
	}
};
