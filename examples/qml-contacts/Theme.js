.pragma library

// Colours and sizes that several files use.
var background = "#eef1f4"
var surface = "#ffffff"
var pressed = "#d5dde3"
var line = "#dde3e8"
var text = "#1c2833"
var faint = "#607080"
var accent = "#1f6f8b"
var call = "#2e9e5b"
var error = "#b3261e"
var margin = 12
var large = 18
var medium = 16
var small = 13
