#pragma once

#include "app/platform/SecretStore.h"

namespace vl {

// The secure store over the freedesktop Secret Service (GNOME Keyring, KWallet, KeePassXC), as
// generic passwords of the service "org.velmora.app". A locked keyring reads as no value; no
// Secret Service at all fails every call at once. Both are silent.
class KeychainSecretStore final : public SecretStore {
public:
    using SecretStore::SecretStore;

    QCoro::Task<std::optional<QString>> get(QString key) override;
    QCoro::Task<> set(QString value, QString key) override;
    QCoro::Task<> remove(QString key) override;
};

} // namespace vl
