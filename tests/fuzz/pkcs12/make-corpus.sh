#!/usr/bin/env bash
# Makes corpus/openssl anew: PKCS #12 files as the openssl command writes them, for the fuzzer to start from and for the
# unit tests to import. Passwords are "secret" where the name says so, otherwise empty.
set -euo pipefail
# Passwords are passed in UTF-8.
export LC_ALL=C.UTF-8
out=$(cd "$(dirname "$0")" && pwd)/corpus/openssl
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$out"
cd "$work"

# identity NAME ALGORITHM OPTION…: a self-signed certificate for NAME.example.com, with its key.
identity() {
  openssl req -x509 -newkey "$2" "${@:3}" -noenc -keyout "$1.key" -out "$1.pem" -days 36500 \
    -subj "/O=Brimlow/CN=$1.example.com" -addext "subjectAltName=DNS:$1.example.com" 2>/dev/null
}

# issued NAME ISSUER EXTENSION: a certificate with an elliptic-curve key, signed by ISSUER.
issued() {
  openssl req -new -newkey ec -pkeyopt ec_paramgen_curve:P-256 -noenc -keyout "$1.key" -out "$1.csr" \
    -subj "/O=Brimlow/CN=$1.example.com" 2>/dev/null
  openssl x509 -req -in "$1.csr" -CA "$2.pem" -CAkey "$2.key" -days 36500 -out "$1.pem" \
    -extfile <(echo "basicConstraints=critical,$3") 2>/dev/null
}

# bundle FILE NAME PASSWORD OPTION…
bundle() {
  openssl pkcs12 -export -in "$2.pem" -inkey "$2.key" -out "$out/$1.p12" -passout "pass:$3" "${@:4}"
}

identity rsa rsa:2048
identity ec ec -pkeyopt ec_paramgen_curve:P-256
identity ed25519 ed25519
identity root ec -pkeyopt ec_paramgen_curve:P-256
issued intermediate root CA:TRUE
# Its serial number and fingerprint are in CertStoreTest.
issued chain intermediate CA:FALSE
cat intermediate.pem root.pem >issuers.pem

bundle rsa rsa ''
bundle rsa-secret rsa secret
bundle ec ec ''
bundle ec-secret ec secret
bundle ed25519 ed25519 ''
bundle chain chain '' -certfile issuers.pem
bundle chain-secret chain secret -certfile issuers.pem
# What the programs of the years before 2020 wrote: 3DES for the key, 40-bit RC2 or 3DES for the certificate, SHA-1.
bundle rc2 rsa '' -legacy
bundle rc2-secret rsa secret -legacy
bundle 3des-secret ec secret -keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -macalg sha1
bundle 3des ec '' -keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -macalg sha1
# Nothing is encrypted, or nothing protected against changes: what is in the file can be changed one by one.
bundle plain ec '' -keypbe NONE -certpbe NONE
bundle plain-without-mac chain '' -keypbe NONE -certpbe NONE -nomac -certfile issuers.pem
bundle smallest ed25519 '' -keypbe NONE -certpbe NONE -nomac
bundle without-mac ec '' -nomac -certpbe AES-256-CBC
bundle without-mac-3des ec '' -keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -nomac
bundle without-mac-secret ec secret -nomac -certpbe AES-256-CBC
# So many rounds that the number takes three bytes, which tests replace.
bundle rounds ec '' -iter 70000
bundle rounds-without-mac ec '' -iter 70000 -nomac -certpbe AES-256-CBC
# Passwords beyond ASCII: "Grüße" and a key.
bundle umlauts ec $'Gr\u00fc\u00dfe'
bundle umlauts-3des ec $'Gr\u00fc\u00dfe' -keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -macalg sha1
bundle emoji ec $'\U1F511'
bundle emoji-3des ec $'\U1F511' -keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -macalg sha1

openssl pkcs12 -export -nokeys -in ec.pem -out "$out/certificate-only.p12" -passout pass:
openssl pkcs12 -export -nocerts -inkey ec.key -out "$out/key-only.p12" -passout pass: 2>/dev/null
# A second certificate for the key of "ec", as after a renewal.
openssl req -x509 -new -key ec.key -out renewed.pem -days 36500 -subj "/O=Brimlow/CN=renewed.example.com"
openssl pkcs12 -export -nokeys -in renewed.pem -out "$out/renewed.p12" -passout pass:
# A kind of key that servers do not use.
openssl dsaparam -out dsa.params 1024 2>/dev/null
openssl req -x509 -newkey dsa:dsa.params -noenc -keyout dsa.key -out dsa.pem -days 36500 -subj /CN=dsa.example.com 2>/dev/null
bundle dsa dsa ''
chmod 644 "$out"/*.p12

# The same in few rounds, which the fuzzer has time for, and with a password a key store.
few=$out/../few-rounds
stores=$out/../../../key_store/corpus
certificates=$out/../../../certificate/corpus
mkdir -p "$few" "$stores" "$certificates"
out=$few
bundle ec ec '' -iter 1
bundle ec-secret ec secret -iter 2
bundle ec-plain-mac ec '' -iter 1 -keypbe NONE -certpbe NONE
bundle rsa rsa '' -iter 1
bundle ed25519 ed25519 '' -iter 1 -nomac -certpbe AES-256-CBC
bundle chain chain '' -iter 1 -certfile issuers.pem
bundle rc2 ec '' -iter 1 -legacy
bundle 3des ec '' -iter 1 -keypbe PBE-SHA1-3DES -certpbe PBE-SHA1-3DES -macalg sha1
bundle key-twice ec '' -iter 1 -nomac -certpbe NONE
chmod 644 "$out"/*.p12

# store NAME FILE PASSWORD: a key store, behind its password in a line of its own.
store() { { echo "$3"; openssl pkcs12 -export -in "$2.pem" -inkey "$2.key" -passout "pass:$3" -iter 1 "${@:4}"; } >"$stores/$1"; }
store usual ec store
store issuers chain store -certfile issuers.pem
store without-mac ec store -nomac
store readable ec store -nomac -certpbe NONE
store empty-password ed25519 '' -nomac -certpbe NONE
store plain-key ec store -nomac -certpbe NONE -keypbe NONE
{ echo store; openssl pkcs12 -export -nocerts -inkey ec.key -passout pass:store -iter 1; } >"$stores/waiting-key" 2>/dev/null
{ echo other; tail -n +2 "$stores/usual"; } >"$stores/other-password"

for name in rsa ec ed25519 root intermediate chain renewed dsa; do
  openssl x509 -in $name.pem -outform DER -out "$certificates/$name.der"
done
openssl req -x509 -key ec.key -out odd.pem -days 36500 -subj $'/CN=first/CN=se\tcond/CN=\u00fc\U1F511' -utf8 -set_serial -255
openssl x509 -in odd.pem -outform DER -out "$certificates/odd.der"
openssl req -x509 -key ec.key -out nameless.pem -days 36500 -subj '/O=Brimlow' -set_serial 0
openssl x509 -in nameless.pem -outform DER -out "$certificates/nameless.der"
