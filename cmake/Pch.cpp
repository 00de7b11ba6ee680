// What the precompiled headers are compiled with; nothing of its own.
