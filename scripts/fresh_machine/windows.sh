# ./test --windows on a bare system. Runs inside, as root.
set -euo pipefail
cd /root/orvandiag
./test --windows
