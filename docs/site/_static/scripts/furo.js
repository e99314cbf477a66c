// Light or dark, as the reader's system has it or as the button says: in place of the theme's own script, which is a module,
// and those are not loaded by a page in a file.
const dark = matchMedia("(prefers-color-scheme: dark)");
const show = () => (document.body.dataset.theme = localStorage.getItem("theme") || (dark.matches ? "dark" : "light"));
show();
dark.addEventListener("change", show);
for (const button of document.querySelectorAll(".theme-toggle"))
    button.addEventListener("click", () => {
        localStorage.setItem("theme", document.body.dataset.theme === "dark" ? "light" : "dark");
        show();
    });
