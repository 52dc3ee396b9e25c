// libc++ asks for this header on macOS. What it wants of it, the host's <locale.h> has declared already.
#pragma once
