#!/usr/bin/env bash
# screenshots.sh FOLDER: pictures of the console with every node selected and of every dialog, as PNG files. Works in
# the prefix of ./run.sh, which has the sample data, the plug-in and the service.
set -euo pipefail
target=$(mkdir -p "$1" && cd "$1" && pwd)
cd "$(dirname "$0")/.."

# shellcheck source=tools/wine.sh
. tools/wine.sh
own_display=
if [ -z "${DISPLAY:-}" ]; then
  own_display=yes
  use_display
fi
use_prefix "$PWD/out/prefix"
console=$(windows_path out/windows-x64/TConsole.exe)

# picture NAME ARGUMENTS…: inside a desktop of Wine's own, so that the frame of a window is in the picture too.
picture() {
  local name=$1
  shift
  timeout 120 wine explorer "/desktop=$name,1280x900" "$console" "$@" --size 1000x640 \
    --screenshot "$(windows_path "$target")\\$name.png" >/dev/null 2>&1 || true
  [ -e "$target/$name.png" ] || { echo "No picture of $name" >&2; exit 1; }
  echo "  $name.png"
}

echo "Taking pictures into $target"
rm -f "$target"/*.png
listener='Engine Settings\Listener Configuration'
encoder='Engine Settings\AFP Encoder'
fonts='Engine Settings\Private Fonts'
templates='Server Templates'
invoices="$templates\\Invoices"
picture root
picture about --select 'About KV Tessaro'
picture hot-folders --select 'Hot Folders'
picture server-templates --select 'Server Templates'
picture application --select "$invoices"
picture application-users --select "$invoices\\Users"
picture resource-folder --select "$invoices\\Images"
picture users --select 'Users'
picture server-certificates --select 'Server Certificates'
picture engine-settings --select 'Engine Settings'
picture listener-configuration --select "$listener"
picture afp-encoder --select "$encoder"
picture private-fonts --select "$fonts"
picture log --select 'Log'
picture log-files --select 'Log\Log Files'
picture dialog-edit-property --select "$listener" --row Port --command 1000
picture dialog-edit-bool-property --select "$encoder" --row 'Convert to Grayscale' --command 1000
picture dialog-edit-enum-property --select "$encoder" --row 'Fonts Used' --command 1000
picture dialog-edit-enum-property-three --select "$encoder" --row 'Grayscale Method' --command 1000
picture dialog-edit-private-font --select "$fonts" --row ARIAL --command 1044
picture dialog-hot-folder --select 'Hot Folders' --row Invoices --command 1048
picture dialog-add-hot-folder --select 'Hot Folders' --command 1022
picture dialog-actions --select 'Hot Folders' --row Invoices --command 1048 --press 246
picture dialog-edit-action --select 'Hot Folders' --row Invoices --command 1048 --press 246 --press 261
picture dialog-hot-folder-settings --select 'Hot Folders' --row Invoices --command 1048 --press 287
picture dialog-add-application --select "$templates" --command 1058
picture dialog-edit-application --select "$invoices" --command 1062
picture dialog-add-template --select "$invoices" --command 1053
picture dialog-edit-template --select "$invoices" --row invoice.kvd --command 1052
picture dialog-add-resource-folder --select "$invoices" --command 1060
picture dialog-rename-resource-folder --select "$invoices\\Images" --command 1065
picture dialog-add-resource-file --select "$invoices\\Images" --command 1064
picture dialog-edit-resource-file --select "$invoices\\Images" --row logo.svg --command 1068
picture dialog-grant-access --select "$invoices\\Users" --command 1057
picture dialog-add-user --select 'Users' --command 1054
picture dialog-edit-user --select 'Users' --row m_keller --command 1055
picture dialog-edit-guest --select 'Users' --row Guest --command 1055
# A certificate's row begins with its serial number, which is a random one.
serial_number=$(timeout 120 wine "$console" --list --select 'Server Certificates' 2>/dev/null | grep -oE '[0-9A-F]{16,}' | head -n 1)
picture dialog-certificate --select 'Server Certificates' --row "$serial_number" --command 1015
install=(--select 'Server Certificates' --command 1012)
picture wizard-certificate-type "${install[@]}"
picture wizard-certificate-request-operation "${install[@]}" --press 310 --press 12324
picture wizard-certificate-information "${install[@]}" --press 12324
subject=()
for field in {300..308}; do
  subject+=(--enter "$field=FR")
done
picture wizard-certificate-request-file "${install[@]}" --press 310 --press 12324 --press 12324 "${subject[@]}" --press 12324
picture wizard-certificate-file "${install[@]}" --press 310 --press 12324 --press 296 --press 12324
# A file that does not open without a password, which is what the wizard asks for then.
secret=$WINEPREFIX/drive_c/secret.p12
openssl req -x509 -newkey rsa:2048 -nodes -subj /CN=server.example -keyout "$secret.key" -out "$secret.cer" 2>/dev/null
openssl pkcs12 -export -inkey "$secret.key" -in "$secret.cer" -passout pass:secret -out "$secret"
picture dialog-enter-password "${install[@]}" --press 310 --press 12324 --press 296 --press 12324 \
  --enter '299=C:\secret.p12' --press 12325
rm "$secret" "$secret.key" "$secret.cer"
picture dialog-edit-log-level --select 'Log' --row 'Log Level' --command 1000
[ -z "$own_display" ] || stop_wine
