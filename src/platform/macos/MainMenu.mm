#include "platform/macos/MainMenu.h"

#import <AppKit/AppKit.h>

#include "platform/macos/FatalError.h"

namespace lumo {
namespace {

NSMenu* makeApplicationMenu() {
    NSMenu* menu = [[NSMenu alloc] initWithTitle:@""];
    [menu addItem:[[NSMenuItem alloc] initWithTitle:@"Quit Vexa Lumo 65"
                                             action:@selector(terminate:)
                                      keyEquivalent:@"q"]];
    return menu;
}

}  // namespace

void installMainMenu() {
    if (!NSApp) fatalError("the main menu needs the application object");
    NSMenu* bar = [[NSMenu alloc] initWithTitle:@""];
    NSMenuItem* application = [[NSMenuItem alloc] initWithTitle:@"" action:nil keyEquivalent:@""];
    [bar addItem:application];
    application.submenu = makeApplicationMenu();
    NSApp.mainMenu = bar;
}

}  // namespace lumo
