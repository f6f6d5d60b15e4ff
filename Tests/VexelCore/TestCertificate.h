#pragma once

#include <filesystem>
#include <string>

/** A new key and a certificate that it signs itself, as files of PEM text that go with the object. */
class FTestCertificate
{
public:
	/** @param SubjectNames as OpenSSL writes them: "IP:127.0.0.1,DNS:localhost". */
	explicit FTestCertificate(const std::string& SubjectNames, long LifeSeconds = 3600);
	~FTestCertificate();

	std::filesystem::path GetKeyPath() const { return Directory / "key.pem"; }
	std::filesystem::path GetCertificatePath() const { return Directory / "certificate.pem"; }

private:
	std::filesystem::path Directory;
};
