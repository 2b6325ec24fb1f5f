# The packages on a bare system, as apt installs them and an ordinary user works with them. Runs
# inside, as root.
set -euo pipefail
fail() {
  printf '%s\n' "$*" >&2
  exit 1
}
get() { DEBIAN_FRONTEND=noninteractive apt-get -y -qq "$@" >/root/apt.log 2>&1 || fail "$(cat /root/apt.log)"; }

get update
# A file of their own name, or apt would not take it for a path; readable for apt's own user.
chmod 755 /root
get install --no-install-recommends /root/packages/orvandiag_*.deb
! dpkg-query -W 'libqt6*' >/dev/null 2>&1 || fail "the command line brings the window's libraries"
useradd --create-home person
as_person() { su person -c "cd; $1"; }

as_person 'orvandiag sample site' >/dev/null
as_person 'orvandiag --site site status'
as_person 'orvandiag --site site gather frame --from "2025-02-20 15:42" --hours 2 --to case'
get install --no-install-recommends bash-completion cabextract man-db mdbtools
rows=$(as_person 'mdb-export case/*.mdb tblTraces' | wc -l)
[ "$rows" -gt 1000 ] || fail "the trace database has $rows rows"
as_person 'cabextract --test case/*.cab' >/dev/null
as_person 'man orvandiag' | grep -q '^SYNOPSIS' || fail "orvandiag has no manual page"
as_person 'bash -c ". /usr/share/bash-completion/bash_completion
  _completion_loader orvandiag; complete -p orvandiag"' >/dev/null || fail "nothing completes orvandiag"

get install --no-install-recommends /root/packages/orvandiag-console_*.deb
as_person 'QT_QPA_PLATFORM=offscreen orvandiag-console --version'
as_person 'QT_QPA_PLATFORM=offscreen orvandiag-console --site site --screenshot console.png'
[ "$(wc -c </home/person/console.png)" -gt 10000 ] || fail "the console's window shows nothing"
as_person 'man orvandiag-console' | grep -q '^OPTIONS' || fail "the console has no manual page"
grep -q '^Exec=orvandiag-console$' /usr/share/applications/orvandiag-console.desktop
as_person 'QT_QPA_PLATFORM=offscreen orvandiag-viewer --screenshot viewer.png case/*.mdb'
[ "$(wc -c </home/person/viewer.png)" -gt 10000 ] || fail "the viewer's window shows nothing"
as_person 'man orvandiag-viewer' | grep -q '^OPTIONS' || fail "the viewer has no manual page"

get purge orvandiag orvandiag-console
left=$(find / -xdev -name '*orvandiag*' -not -path '/root/*' -not -path '/home/*' \
  -not -path '/proc/*' -not -path '/var/lib/apt/*' -not -path '/var/lib/bash-completion/*')
[ -z "$left" ] || fail "removing the packages leaves $left"
echo "installed, used and removed"
