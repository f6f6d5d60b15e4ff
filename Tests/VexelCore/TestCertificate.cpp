#include "TestCertificate.h"

#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <memory>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/x509v3.h>

namespace
{
using FKey = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using FCertificate = std::unique_ptr<X509, decltype(&X509_free)>;
using FFile = std::unique_ptr<FILE, decltype(&fclose)>;

void AddExtension(X509* Certificate, int Id, const std::string& Value)
{
	X509_EXTENSION* const Extension = X509V3_EXT_conf_nid(nullptr, nullptr, Id, Value.c_str());
	ASSERT_NE(Extension, nullptr) << Value;
	X509_add_ext(Certificate, Extension, -1);
	X509_EXTENSION_free(Extension);
}

FCertificate MakeCertificate(EVP_PKEY* Key, const std::string& SubjectNames, long LifeSeconds)
{
	FCertificate Certificate(X509_new(), &X509_free);
	constexpr long VersionThree = 2;
	constexpr long Past = -3600;
	X509_set_version(Certificate.get(), VersionThree);
	ASN1_INTEGER_set(X509_get_serialNumber(Certificate.get()), 1);
	X509_gmtime_adj(X509_getm_notBefore(Certificate.get()), 2 * Past);
	X509_gmtime_adj(X509_getm_notAfter(Certificate.get()), LifeSeconds);
	X509_NAME* const Name = X509_get_subject_name(Certificate.get());
	X509_NAME_add_entry_by_txt(Name, "CN", MBSTRING_ASC, reinterpret_cast<const unsigned char*>("Vexel test"), -1, -1, 0);
	X509_set_issuer_name(Certificate.get(), Name);
	X509_set_pubkey(Certificate.get(), Key);
	AddExtension(Certificate.get(), NID_subject_alt_name, SubjectNames);
	AddExtension(Certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
	EXPECT_GT(X509_sign(Certificate.get(), Key, EVP_sha256()), 0);
	return Certificate;
}
}

FTestCertificate::FTestCertificate(const std::string& SubjectNames, long LifeSeconds)
{
	std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-tls-XXXXXX").string();
	Directory = mkdtemp(Pattern.data());
	const FKey Key(EVP_EC_gen("P-256"), &EVP_PKEY_free);
	const FCertificate Certificate = MakeCertificate(Key.get(), SubjectNames, LifeSeconds);
	const FFile KeyFile(fopen(GetKeyPath().c_str(), "w"), &fclose);
	const FFile CertificateFile(fopen(GetCertificatePath().c_str(), "w"), &fclose);
	EXPECT_EQ(PEM_write_PrivateKey(KeyFile.get(), Key.get(), nullptr, nullptr, 0, nullptr, nullptr), 1);
	EXPECT_EQ(PEM_write_X509(CertificateFile.get(), Certificate.get()), 1);
}

FTestCertificate::~FTestCertificate()
{
	std::error_code Ignored;
	std::filesystem::remove_all(Directory, Ignored);
}
