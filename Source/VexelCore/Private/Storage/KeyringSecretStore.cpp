#include "Storage/KeyringSecretStore.h"

#include "Storage/SecretBytes.h"
#include "VexelErrorKinds.h"

#include <libsecret/secret.h>

namespace
{
constexpr ANSICHAR ScopeAttribute[] = "scope";
constexpr ANSICHAR KeyAttribute[] = "key";

const SecretSchema& GetSchema()
{
	static const SecretSchema Schema = []
	{
		SecretSchema Made = {};
		Made.name = "dev.vexel.Secret";
		Made.attributes[0] = {ScopeAttribute, SECRET_SCHEMA_ATTRIBUTE_STRING};
		Made.attributes[1] = {KeyAttribute, SECRET_SCHEMA_ATTRIBUTE_STRING};
		return Made;
	}();
	return Schema;
}

/** The attributes by which a secret is found. */
class FAttributes
{
public:
	FAttributes(const FString& Scope, const FString& Key)
		: Table(g_hash_table_new_full(g_str_hash, g_str_equal, nullptr, g_free))
	{
		g_hash_table_insert(Table, const_cast<ANSICHAR*>(ScopeAttribute), g_strdup(TCHAR_TO_UTF8(*Scope)));
		g_hash_table_insert(Table, const_cast<ANSICHAR*>(KeyAttribute), g_strdup(TCHAR_TO_UTF8(*Key)));
	}
	~FAttributes() { g_hash_table_unref(Table); }
	UE_NONCOPYABLE(FAttributes)

	GHashTable* Get() const { return Table; }

private:
	GHashTable* Table;
};

/** Takes the failure over. */
FVexelError MakeError(const TCHAR* What, GError* Failure)
{
	const FString Reason = FString(UTF8_TO_TCHAR(Failure->message));
	g_error_free(Failure);
	return VEXEL_ERROR(FVexelError_SecureStorage, "%s the keyring: %s", What, *Reason);
}
}

bool FKeyringSecretStore::IsAvailable()
{
	GError* Failure = nullptr;
	GDBusConnection* const Bus = g_bus_get_sync(G_BUS_TYPE_SESSION, nullptr, &Failure);
	if (!Bus)
	{
		g_clear_error(&Failure);
		return false;
	}
	// Its own way with a session that ends is to end the process.
	g_dbus_connection_set_exit_on_close(Bus, FALSE);
	g_object_unref(Bus);
	SecretService* const Service = secret_service_get_sync(SECRET_SERVICE_OPEN_SESSION, nullptr, &Failure);
	g_clear_error(&Failure);
	if (!Service)
	{
		return false;
	}
	g_object_unref(Service);
	return true;
}

FKeyringSecretStore::FKeyringSecretStore(const FString& InScope)
	: Scope(InScope)
{
}

TVexelExpected<void> FKeyringSecretStore::Store(const FString& Key, const FString& Value)
{
	int32 Ignored = 0;
	if (Value.FindChar(TEXT('\0'), Ignored))
	{
		return VEXEL_ERROR(FVexelError_SecureStorage, "The keyring takes no text with a null character in it");
	}
	const FAttributes Attributes(Scope, Key);
	const FString Label = TEXT("Vexel: ") + Key + (Scope.IsEmpty() ? FString() : TEXT(" of ") + Scope);
	const FWipedUtf8 Utf8(*Value);
	GError* Failure = nullptr;
	const gboolean bStored = secret_password_storev_sync(
		&GetSchema(), Attributes.Get(), SECRET_COLLECTION_DEFAULT, TCHAR_TO_UTF8(*Label), Utf8.Get(), nullptr, &Failure);
	return bStored ? TVexelExpected<void>() : MakeError(TEXT("Cannot write to"), Failure);
}

TVexelExpected<TOptional<FString>> FKeyringSecretStore::Load(const FString& Key)
{
	const FAttributes Attributes(Scope, Key);
	GError* Failure = nullptr;
	gchar* const Raw = secret_password_lookupv_sync(&GetSchema(), Attributes.Get(), nullptr, &Failure);
	if (Failure)
	{
		return MakeError(TEXT("Cannot read from"), Failure);
	}
	TOptional<FString> Value;
	if (Raw)
	{
		const FWipedTChar Text(Raw);
		Value = FString::ConstructFromPtrSize(Text.Get(), Text.Length());
		secret_password_free(Raw);
	}
	return Value;
}

TVexelExpected<void> FKeyringSecretStore::Delete(const FString& Key)
{
	const FAttributes Attributes(Scope, Key);
	GError* Failure = nullptr;
	secret_password_clearv_sync(&GetSchema(), Attributes.Get(), nullptr, &Failure);
	return Failure ? TVexelExpected<void>(MakeError(TEXT("Cannot delete from"), Failure)) : TVexelExpected<void>();
}
