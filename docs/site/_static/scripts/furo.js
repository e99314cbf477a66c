// Light, dark, or as the reader's system says: in place of the theme's own script, which a page in a file cannot load.
for (const button of document.querySelectorAll(".theme-toggle"))
    button.addEventListener("click", () => {
        const next = {auto: "dark", dark: "light", light: "auto"};
        document.body.dataset.theme = next[document.body.dataset.theme] || "dark";
        localStorage.setItem("theme", document.body.dataset.theme);
    });
