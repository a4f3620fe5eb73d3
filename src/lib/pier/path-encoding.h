// How Qt takes the bytes of paths.
#pragma once

// Makes Qt take the bytes of paths and of the environment for UTF-8, whatever the user's locale says, as the rest of
// the program does. Call before the application object is built. Main thread. Source: QTextCodec::setCodecForLocale; Qt
// 6 does so by itself.
void UsePathsInUtf8();
